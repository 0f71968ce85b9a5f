#include "desktop/before_commands.h"

#include "app/refusals.h"
#include "day/changes.h"
#include "desktop/card_texts.h"
#include "desktop/shown_text.h"
#include "results/board.h"
#include "results/results_text.h"

#include <QMessageBox>
#include <QPushButton>

#include <array>

namespace quillon {
namespace {

WindowAnswer askInBox(QWidget& window, const WindowQuestion& question) {
    constexpr std::array roles{QMessageBox::AcceptRole, QMessageBox::DestructiveRole,
                               QMessageBox::RejectRole};
    QMessageBox box{QMessageBox::Warning, "Quillon", {}, QMessageBox::NoButton, &window};
    box.setObjectName("WindowQuestion");
    box.setTextFormat(Qt::PlainText);
    box.setText(question.text);
    std::array<QPushButton*, roles.size()> buttons{};
    for (std::size_t at = 0; at < roles.size(); ++at)
        buttons.at(at) = box.addButton(question.answers.value(static_cast<qsizetype>(at)), roles.at(at));
    box.setDefaultButton(buttons.front());
    box.setEscapeButton(buttons.back());
    box.exec();
    for (const WindowAnswer answer : {safeAnswer, goOnAnswer})
        if (box.clickedButton() == buttons.at(answer)) return answer;
    return cancelAnswer;
}

// The card goes with the program, or another takes its place.
bool losesCard(CommandId id) {
    return id == CommandId::Exit_QL || id == CommandId::CloseWindow || id == CommandId::NewRC ||
           ((command(id).effect == Effect::opensCard || command(id).effect == Effect::restoresCard) &&
            cardIsOpen());
}

// Start over a recalled card shows its races and loads nothing.
bool loadsNothing(CommandId id) {
    return id == CommandId::Start && theScreen.startOffer == StartOffer::viewRaces;
}

} // namespace

BeforeCommands::BeforeCommands(CommandRunner& runner, QWidget& window)
    : QObject{&window}, ask{[&window](const WindowQuestion& question) { return askInBox(window, question); }},
      runner_{runner} {
    runner_.setGuard([this](CommandId id, const Arguments& arguments) { return allows(id, arguments); });
}

bool BeforeCommands::allows(CommandId id, const Arguments&) {
    if (const Text reason = reasonAgainst(id); !reason.empty()) {
        emit refused(shown(reason), CommandId::count);
        return false;
    }
    if (readsOtherLayout(id)) return false;
    if (losesCard(id) && !loadsNothing(id) && !mayLoseCard()) return false;
    if (mayDropTyping(command(id)) && !mayLoseTyping()) return false;
    return id != CommandId::Record || mayRecord();
}

bool BeforeCommands::mayLoseCard() {
    const auto unsaved = changes.unsaved();
    if (!cardIsOpen() || unsaved == 0) return true;
    const QString count = unsaved == 1 ? tr("1 change is") : tr("%1 changes are").arg(unsaved);
    const WindowAnswer answer =
        ask({tr("%1: %2 not saved.").arg(cardTitle(), count), {tr("&Save"), tr("&Discard"), tr("Cancel")}});
    if (answer != safeAnswer) return answer == goOnAnswer;
    runner_.runUnasked(CommandId::Save);
    return changes.unsaved() == 0; // else the save has told why not
}

// An arrow takes the board in on its way; the one back is there in every race.
bool BeforeCommands::mayLoseTyping() {
    if (!boardHasUnkeptTyping()) return true;
    const WindowAnswer answer = ask(
        {tr("Keep what you typed for race %1?").arg(raceOnShow()), {tr("&Keep"), tr("&Drop"), tr("Cancel")}});
    if (answer == safeAnswer) runner_.runUnasked(CommandId::Previous);
    return answer != cancelAnswer;
}

bool BeforeCommands::mayRecord() {
    const int pending = boardsPending();
    if (pending == 0) return true;
    const WindowAnswer answer =
        ask({pendingWords(pending) + tr(" The archive would keep the sums as they stand."),
             {tr("&Take All In"), tr("&Record as It Stands"), tr("Cancel")}});
    if (answer == safeAnswer) {
        runner_.runUnasked(CommandId::TakeAllIn);
        runner_.runUnasked(CommandId::SelectionResults);
    }
    return answer != cancelAnswer;
}

// The pass for the other layout takes its dates from other lines, and would tell of a wrong day.
bool BeforeCommands::readsOtherLayout(CommandId id) {
    if (id != CommandId::AutoRecord && id != CommandId::EBET) return false;
    const auto text = resultsText();
    const ResultsLayout layout = text ? layoutOf(*text) : ResultsLayout::unknown;
    const bool isColumns = id == CommandId::AutoRecord;
    if (layout == ResultsLayout::unknown || (layout == ResultsLayout::columns) == isColumns) return false;
    emit refused(isColumns
                     ? tr("This results page is one that says \"1st\", \"2nd\": TRC Auto Record reads it.")
                     : tr("This results page is one in columns: Auto Record Payoffs reads it."),
                 isColumns ? CommandId::EBET : CommandId::AutoRecord);
    return true;
}

} // namespace quillon

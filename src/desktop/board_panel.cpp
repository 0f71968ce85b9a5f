#include "desktop/board_panel.h"

#include "desktop/board_boxes.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "reports/bet_mark.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPalette>

#include <utility>

namespace quillon {
namespace {

constexpr int longestText = 255;

constexpr int numberTwips = 600;
constexpr int payoffTwips = 1020;
constexpr int exoticTwips = 1200;
constexpr int wideTwips = 2000;

QFrame* rule(QWidget* parent) {
    auto* line = new QFrame{parent};
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

void put(QLineEdit& edit, const Text& text) {
    const QString wanted = shown(text);
    if (!edit.isModified() && edit.text() != wanted) edit.setText(wanted);
}

void paint(QLineEdit& edit, Colour colour) {
    QPalette palette;
    if (colour != white) {
        palette.setColor(QPalette::Base, shown(colour));
        palette.setColor(QPalette::Text, legibleOn(shown(colour)));
    }
    edit.setPalette(palette);
}

} // namespace

BoardPanel::BoardPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance}, grid_{new QGridLayout{this}} {
    setObjectName("BoardPanel");
    painted_.fill(white);
    grid_->setContentsMargins(0, 2, 0, 2);
    grid_->setHorizontalSpacing(5);
    grid_->setVerticalSpacing(2);
    buildRunners();
    buildStanding();
    buildTote();
    buildWideBoxes();
    for (const int column : {BoardColumn::afterRunners, BoardColumn::afterPayoffs, BoardColumn::afterExotics})
        grid_->addWidget(rule(this), BoardRow::heads, column, BoardRow::count, 1);
    buildTabOrder();
    connect(&runner_, &CommandRunner::aboutToRun, this, [this] {
        handIn();
        unkept_ = boardHasUnkeptTyping() ? raceOnShow() : 0;
    });
    connect(&runner_, &CommandRunner::ran, this, &BoardPanel::takeUp);
    connect(&appearance_, &Appearance::changed, this, &BoardPanel::lay);
    lay();
}

// A box that has the focus loses it when it is deleted, and by then we are gone.
BoardPanel::~BoardPanel() {
    for (const Entry& entry : entries_) entry.edit->disconnect(this);
}

QLabel* BoardPanel::addLabel(const QString& text, int row, int column) {
    auto* label = new QLabel{text, this};
    label->setTextFormat(Qt::PlainText);
    grid_->addWidget(label, row, column);
    captions_.push_back(label);
    return label;
}

QLineEdit* BoardPanel::addEntry(const QString& objectName, const QString& name, CommandId id,
                                std::function<void(const Text&)> send) {
    auto* edit = new QLineEdit{this};
    edit->setObjectName(objectName);
    setCommand(*edit, id);
    edit->setAccessibleName(name);
    edit->setToolTip(name);
    edit->setMaxLength(longestText);
    entries_.push_back({edit, std::move(send)});
    connect(edit, &QLineEdit::editingFinished, this, &BoardPanel::handIn);
    connect(edit, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    return edit;
}

void BoardPanel::buildRunners() {
    for (std::size_t i = 0; i < runnerBoxes.size(); ++i) {
        const RunnerBox& place = runnerBoxes[i];
        const auto number = static_cast<int>(i);
        boxes_[i] = addEntry(
            QString{"Box%1"}.arg(number), tr(place.name), CommandId::Box, [this, number](const Text& text) {
                runner_.run(CommandId::Box, Arguments{.numbers = {number, 0, 0}, .text = text});
            });
        boxes_[i]->setAlignment(Qt::AlignCenter);
        QLabel* caption = addLabel(tr(place.caption), place.row - 1, place.column);
        caption->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        caption->setBuddy(boxes_[i]);
        grid_->addWidget(boxes_[i], place.row, place.column);
    }
}

void BoardPanel::buildStanding() {
    addLabel(tr("Margin"), BoardRow::heads, BoardColumn::standing)
        ->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    margin_ = addLabel({}, BoardRow::win, BoardColumn::standing);
    margin_->setObjectName("Margin");
    margin_->setToolTip(tr("How far the rating of S1 is below that of S2, in points"));
    addLabel(tr("Bet"), BoardRow::place, BoardColumn::standing)
        ->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    betMark_ = addLabel({}, BoardRow::show, BoardColumn::standing);
    betMark_->setObjectName("BetMark");
    betMark_->setToolTip(
        tr("The bet mark of this margin: $ to $$$$$ by whole points from 1, VDH below a point, "
           "DEAD HEAT for a tenth or less"));
    for (QLabel* label : {margin_, betMark_}) label->setAlignment(Qt::AlignCenter);
}

void BoardPanel::buildTote() {
    heading_ = addLabel({}, BoardRow::heads, BoardColumn::toteCaptions);
    heading_->setObjectName("ToteHeading");
    const auto addPayoff = [this](int box, const char* name) {
        QLineEdit* edit =
            addEntry(QString{"Tote%1"}.arg(box), tr(name), CommandId::Tote, [this, box](const Text& text) {
                runner_.run(CommandId::Tote, Arguments{.numbers = {box, 0, 0}, .text = text});
            });
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return tote_.at(static_cast<std::size_t>(box)) = edit;
    };
    for (const PayoffBox& payoff : payoffBoxes)
        grid_->addWidget(addPayoff(payoff.box, payoff.name), payoff.row, payoff.column);
    addPayoff(ToteBox::deadHeat, deadHeatPlaces.front().name)->hide();
    addPayoff(PayoffCell::dailyDouble, "Daily double")->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (const RowCaption& caption : rowCaptions) addLabel(tr(caption.text), caption.row, caption.column);
    buildPayoffHeads();
}

void BoardPanel::buildPayoffHeads() {
    for (std::size_t i = 0; i < finishLabels_.size(); ++i) {
        auto* head = new QHBoxLayout;
        head->setSpacing(4);
        captions_.push_back(new QLabel{tr(payoffHeads.at(i).text), this});
        finishLabels_[i] = new QLabel{this};
        finishLabels_[i]->setObjectName(QString{"FinishLabel%1"}.arg(i));
        finishLabels_[i]->setTextFormat(Qt::PlainText);
        head->addStretch(1);
        head->addWidget(captions_.back());
        head->addWidget(finishLabels_[i]);
        grid_->addLayout(head, BoardRow::heads, payoffHeads.at(i).column);
    }
}

void BoardPanel::buildWideBoxes() {
    refunds_ = addEntry("Refunds", captionOf(CommandId::Refunds), CommandId::Refunds,
                        [this](const Text& text) { runner_.run(CommandId::Refunds, textArgument(text)); });
    refunds_->setToolTip(tipOf(CommandId::Refunds));
    struct WideBox {
        const char* caption;
        QLineEdit* edit;
        int row;
    };
    for (const WideBox& wide : {WideBox{"Daily Double:", tote_[PayoffCell::dailyDouble], BoardRow::heads},
                                WideBox{"Refunds:", refunds_, BoardRow::place}}) {
        addLabel(tr(wide.caption), wide.row, BoardColumn::wide)->setBuddy(wide.edit);
        grid_->addWidget(wide.edit, wide.row + 1, BoardColumn::wide);
    }
    grid_->setColumnStretch(BoardColumn::wide, 1);
}

// As a results chart is read: the finish, the payoffs, the exotics; the selections are typed least.
void BoardPanel::buildTabOrder() {
    std::vector<QWidget*> order(boxes_.begin() + firstFinishBox, boxes_.end());
    for (const PayoffBox& payoff : payoffBoxes)
        order.push_back(tote_.at(static_cast<std::size_t>(payoff.box)));
    order.push_back(tote_[PayoffCell::dailyDouble]);
    order.push_back(tote_[ToteBox::deadHeat]);
    order.push_back(refunds_);
    order.insert(order.end(), boxes_.begin(), boxes_.begin() + firstFinishBox);
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void BoardPanel::lay() {
    const QFont plain = appearance_.viewFont(10, false);
    const QFont bold = appearance_.viewFont(10, true);
    for (QLabel* caption : captions_) caption->setFont(plain);
    for (QLabel* label : {heading_, margin_, betMark_}) label->setFont(bold);
    betMark_->setMinimumWidth(QFontMetrics{bold}.horizontalAdvance("DEAD HEAT"));
    for (QLabel* label : finishLabels_) label->setFont(bold);
    for (const Entry& entry : entries_) entry.edit->setFont(plain);
    for (QLineEdit* box : boxes_) {
        box->setFont(bold);
        box->setFixedWidth(appearance_.pixels(numberTwips));
    }
    for (const PayoffBox& payoff : payoffBoxes)
        tote_.at(static_cast<std::size_t>(payoff.box))
            ->setFixedWidth(
                appearance_.pixels(payoff.column == BoardColumn::exoticPays ? exoticTwips : payoffTwips));
    tote_[ToteBox::deadHeat]->setFixedWidth(appearance_.pixels(payoffTwips));
    for (QLineEdit* wide : {tote_[PayoffCell::dailyDouble], refunds_})
        wide->setMinimumWidth(appearance_.pixels(wideTwips));
}

void BoardPanel::handIn() {
    if (handingIn_ || runner_.isRunning()) return;
    handingIn_ = true;
    // All texts are taken first: each command draws the board anew.
    std::vector<std::pair<const Entry*, Text>> texts;
    for (const Entry& entry : entries_) {
        if (!entry.edit->isModified()) continue;
        texts.emplace_back(&entry, typed(entry.edit->text()));
    }
    for (const auto& [entry, text] : texts) {
        entry->send(text);
        entry->edit->setModified(false);
    }
    handingIn_ = false;
    if (!texts.empty()) refresh();
}

void BoardPanel::takeUp(CommandId id) {
    if (mayDropTyping(command(id)) && unkept_ > 0 && !boardHasUnkeptTyping()) emit typingDropped(unkept_);
}

void BoardPanel::placeBoxTen() {
    QLineEdit& box = *tote_[ToteBox::deadHeat];
    const int wanted = theScreen.boxTenVisible ? theScreen.boxTenColumn : 0;
    if (wanted != boxTenColumn_) {
        boxTenColumn_ = wanted;
        const DeadHeatPlace& place = deadHeatPlaces.at(static_cast<std::size_t>(wanted));
        grid_->removeWidget(&box);
        if (wanted > 0) grid_->addWidget(&box, place.row, place.column);
        box.setAccessibleName(tr(place.name));
        box.setToolTip(tr("%1. What is typed here does not come back.").arg(box.accessibleName()));
    }
    box.setVisible(wanted > 0);
}

// Of the race as it is ranked, whatever was typed into the boxes.
void BoardPanel::refreshStanding() {
    const ShownMargin now = cardIsOpen() ? shownMargin(raceOnShow()) : ShownMargin{};
    margin_->setText(shown(now.margin));
    betMark_->setText(shown(now.mark));
}

void BoardPanel::tint() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const Colour colour = theScreen.boxes[i].colour;
        if (colour == painted_[i]) continue;
        paint(*boxes_[i], colour);
        painted_[i] = colour;
    }
}

void BoardPanel::refresh() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) put(*boxes_[i], theScreen.boxes[i].text);
    tint();
    refreshStanding();
    heading_->setText(shown(theScreen.tote[ToteBox::heading]));
    for (std::size_t box = ToteBox::first; box < tote_.size(); ++box) put(*tote_[box], theScreen.tote[box]);
    for (std::size_t i = 0; i < finishLabels_.size(); ++i)
        finishLabels_[i]->setText(shown(theScreen.finishLabels[i]));
    put(*refunds_, theScreen.refunds);
    placeBoxTen();
}

} // namespace quillon

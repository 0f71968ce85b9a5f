#include "desktop/header_panel.h"

#include "desktop/mark_texts.h"
#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStringList>

namespace quillon {
namespace {

// "Post Time: 6:48 PM"; nothing for an empty text.
QString named(const QString& name, const Text& text) {
    const QString value = shown(text).trimmed();
    return value.isEmpty() ? QString{} : name + value;
}

QString joined(QStringList parts) {
    parts.removeAll(QString{});
    return parts.join(QStringLiteral("     "));
}

// The track's description is a row of a table, columns blanks apart.
QString label(const Label& label) { return label.visible ? shown(label.caption).simplified() : QString{}; }

} // namespace

HeaderPanel::HeaderPanel(Appearance& appearance, QWidget* parent) : QWidget{parent}, appearance_{appearance} {
    auto* grid = new QGridLayout{this};
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(1);
    const auto label = [&](const char* name) {
        auto* made = new QLabel{this};
        made->setObjectName(name);
        made->setTextInteractionFlags(Qt::TextSelectableByMouse);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    race_ = label("race");
    notes_ = label("raceNotes");
    conditions_ = label("conditions");
    track_ = label("track");
    classText_ = label("classText");
    wagering_ = label("wagering");
    // Long conditions must not widen the window.
    for (QLabel* text : {conditions_, track_, classText_, wagering_}) {
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        text->setMinimumWidth(1);
    }
    auto* raceAndSign = new QHBoxLayout;
    raceAndSign->setSpacing(8);
    raceAndSign->addWidget(race_);
    raceAndSign->addWidget(notes_);
    grid->addLayout(raceAndSign, 0, 0, 2, 1, Qt::AlignVCenter);
    grid->addWidget(conditions_, 0, 1);
    grid->addWidget(track_, 0, 2);
    grid->addWidget(classText_, 1, 1);
    grid->addWidget(wagering_, 1, 2);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 2);
    connect(&appearance_, &Appearance::changed, this, &HeaderPanel::lay);
    lay();
}

void HeaderPanel::lay() {
    race_->setFont(appearance_.viewFont(16, true));
    notes_->setFont(appearance_.viewFont(10, false));
    conditions_->setFont(appearance_.viewFont(10, true));
    track_->setFont(appearance_.viewFont(10, false));
    classText_->setFont(appearance_.viewFont(10, false));
    wagering_->setFont(appearance_.viewFont(10, false));
}

void HeaderPanel::refresh() {
    const RaceHeader& header = theScreen.header;
    race_->setText(tr("RACE %1").arg(shown(header.race)));
    refreshNotes();
    const QString distance = shown(header.distance).trimmed();
    conditions_->setText(joined({named(tr("Post Time: "), header.postTime), shown(header.gait).trimmed(),
                                 distance.isEmpty() ? QString{} : tr("%1 Mi").arg(distance),
                                 named({}, header.purse), named(tr("CR: "), header.cr)}));
    track_->setText(joined({label(header.track), label(header.date), shown(header.trackInfo).simplified()}));
    conditions_->setToolTip(conditions_->text());
    track_->setToolTip(track_->text());
    classText_->setText(shown(header.classText).simplified());
    classText_->setToolTip(classText_->text());
    wagering_->setText(shown(header.wagering).simplified());
    wagering_->setToolTip(wagering_->text());
}

// The sign that entries have, too.
void HeaderPanel::refreshNotes() {
    notes.takeUp();
    const std::vector<NoteLine> found = notes.onRace(raceViewOnShow());
    notes_->setText(signOf({}, !found.empty()));
    const QString words = wordsOf({}, found);
    notes_->setToolTip(asTip(words));
    notes_->setAccessibleName(words);
    notes_->setVisible(!found.empty());
}

} // namespace quillon

#include "desktop/race_bar.h"

#include "desktop/shown_text.h"

#include <QHBoxLayout>

namespace quillon {
namespace {

constexpr int raceButtonTwips = 480;
const char* const currentStyle =
    "QPushButton { background-color: #ff0000; color: white; border: 1px solid #900000; border-radius: 3px;"
    " padding: 3px; }"
    "QPushButton:focus { border: 2px solid black; }";

} // namespace

RaceBar::RaceBar(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3);

    start_ = new QPushButton{this};
    start_->setObjectName("Start");
    start_->setProperty("command", "Start");
    start_->setToolTip(tr("Load and rate the card of the vendor's tables (F5)"));
    connect(start_, &QPushButton::clicked, this, [this] { runner_.run("Start"); });
    row->addWidget(start_);

    const auto arrow = [&](Qt::ArrowType type, const char* command, const QString& name, const QString& tip) {
        auto* button = new QToolButton{this};
        button->setArrowType(type);
        button->setObjectName(command);
        button->setProperty("command", command);
        button->setAccessibleName(name);
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, command] { runner_.run(command); });
        row->addWidget(button);
        return button;
    };
    previous_ = arrow(Qt::LeftArrow, "Previous", tr("Previous race"),
                      tr("Store the board and go to the race before (Alt+Left)"));
    next_ = arrow(Qt::RightArrow, "Next", tr("Next race"),
                  tr("Store the board and go to the next race (Alt+Right)"));

    for (int n = 1; n < static_cast<int>(theScreen.raceButtons.size()); ++n) {
        auto* button = new QPushButton{this};
        button->setObjectName(QString{"RaceButton%1"}.arg(n));
        button->setProperty("command", "RaceButton");
        button->setToolTip(
            tr("Show race %1. The arrows keep what was typed on the board; this button does not.").arg(n));
        connect(button, &QPushButton::clicked, this,
                [this, n] { runner_.run("RaceButton", numberArgument(n)); });
        row->addWidget(button);
        races_.push_back(button);
    }
    row->addStretch(1);
    connect(&appearance_, &Appearance::changed, this, &RaceBar::lay);
    lay();
}

void RaceBar::lay() {
    for (QPushButton* button : races_) {
        button->setFont(appearance_.viewFont(10, true));
        button->setFixedWidth(appearance_.pixels(raceButtonTwips) + 8);
    }
    start_->setFont(appearance_.viewFont(10, true));
}

void RaceBar::refresh() {
    start_->setText(shown(theScreen.start.caption));
    start_->setEnabled(theScreen.start.enabled);
    start_->setVisible(theScreen.start.visible);
    start_->setAccessibleName(shown(theScreen.start.caption));
    bool anyRace = false;
    for (std::size_t i = 0; i < races_.size(); ++i) {
        const Button& button = theScreen.raceButtons[i + 1];
        QPushButton& race = *races_[i];
        anyRace = anyRace || button.visible;
        race.setVisible(button.visible);
        race.setText(shown(button.caption));
        race.setAccessibleName(tr("Race %1").arg(shown(button.caption)));
        race.setStyleSheet(button.current ? currentStyle : "");
    }
    previous_->setEnabled(anyRace);
    next_->setEnabled(anyRace);
}

} // namespace quillon

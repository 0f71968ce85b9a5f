#include "desktop/race_bar.h"

#include "desktop/command_texts.h"
#include "desktop/shown_text.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace quillon {
namespace {

constexpr int raceButtonTwips = 480;
constexpr int captionMargin = 8; ///< pixels, both sides together
constexpr int spacing = 3;       ///< pixels
const char* const currentStyle =
    "QPushButton { background-color: #ff0000; color: white; border: 1px solid #900000; border-radius: 3px;"
    " padding: 3px; }"
    "QPushButton:focus { border: 2px solid black; }";

// Of a race that the user changed.
constexpr int dotPixels = 6;
constexpr int besideDot = 6; ///< pixels that a style leaves between it and the caption

QIcon dot(const QColor& colour) {
    constexpr int finer = 4; // for screens with small pixels
    QPixmap picture{dotPixels * finer, dotPixels * finer};
    picture.fill(Qt::transparent);
    QPainter painter{&picture};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(picture.rect());
    return QIcon{picture};
}

} // namespace

RaceBar::RaceBar(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance}, strip_{new QWidget{this}} {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);

    start_ = new QPushButton{this};
    start_->setObjectName("Start");
    setCommand(*start_, CommandId::Start);
    start_->setToolTip(tipOf(CommandId::Start));
    connect(start_, &QPushButton::clicked, this, [this] { runner_.run(CommandId::Start); });
    row->addWidget(start_);

    const auto arrow = [&](Qt::ArrowType type, CommandId id, const QString& name) {
        auto* button = new QToolButton{this};
        button->setArrowType(type);
        button->setObjectName(nameOf(id));
        setCommand(*button, id);
        button->setAccessibleName(name);
        button->setToolTip(tipOf(id));
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, id] { runner_.run(id); });
        row->addWidget(button);
        return button;
    };
    previous_ = arrow(Qt::LeftArrow, CommandId::Previous, tr("Previous race"));
    next_ = arrow(Qt::RightArrow, CommandId::Next, tr("Next race"));

    for (QWidget* button :
         {static_cast<QWidget*>(start_), static_cast<QWidget*>(previous_), static_cast<QWidget*>(next_)})
        row->setAlignment(button, Qt::AlignTop);
    buildRaces();
    row->addWidget(strip_, 1, Qt::AlignTop);
    connect(&appearance_, &Appearance::changed, this, &RaceBar::lay);
    lay();
}

void RaceBar::buildRaces() {
    for (int n = 1; n < static_cast<int>(theScreen.raceButtons.size()); ++n) {
        auto* button = new QPushButton{strip_};
        button->setObjectName(QString{"RaceButton%1"}.arg(n));
        button->setIconSize({dotPixels, dotPixels});
        setCommand(*button, CommandId::RaceButton);
        connect(button, &QPushButton::clicked, this,
                [this, n] { runner_.run(CommandId::RaceButton, numberArgument(n)); });
        races_.push_back(button);
    }
    strip_->installEventFilter(this);
}

void RaceBar::lay() {
    for (QPushButton* button : races_) button->setFont(appearance_.viewFont(10, true));
    start_->setFont(appearance_.viewFont(10, true));
    for (QToolButton* arrow : {previous_, next_}) arrow->setFixedHeight(start_->sizeHint().height());
    placeRaces();
}

// As wide as designed, else as all go into one row, but not below their captions.
int RaceBar::widthOfRaces(const std::vector<QPushButton*>& races) const {
    int narrowest = 1;
    for (const QPushButton* button : races)
        narrowest =
            std::max(narrowest, button->fontMetrics().horizontalAdvance(button->text()) + captionMargin +
                                    (button->icon().isNull() ? 0 : dotPixels + besideDot));
    const int inOneRow = (strip_->width() + spacing) / static_cast<int>(races.size()) - spacing;
    const int designed = appearance_.pixels(raceButtonTwips) + captionMargin;
    return std::max(narrowest, std::min(designed, inOneRow));
}

// On a narrow or much enlarged window the races go on in further rows, rather than out of the window.
void RaceBar::placeRaces() {
    std::vector<QPushButton*> races;
    for (QPushButton* button : races_)
        if (button->isVisibleTo(strip_)) races.push_back(button);
    const int height = start_->sizeHint().height();
    if (races.empty()) return strip_->setFixedHeight(height);
    const int width = widthOfRaces(races);
    const int perRow = std::max(1, (strip_->width() + spacing) / (width + spacing));
    int at = 0;
    for (QPushButton* button : races) {
        button->setGeometry(at % perRow * (width + spacing), at / perRow * (height + spacing), width, height);
        ++at;
    }
    strip_->setFixedHeight((at - 1) / perRow * (height + spacing) + height);
}

bool RaceBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == strip_ && event->type() == QEvent::Resize) placeRaces();
    return QWidget::eventFilter(watched, event);
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
        const bool visible = button.visible && cardIsOpen(); // a closed card leaves them as they were
        anyRace = anyRace || visible;
        race.setVisible(visible);
        const QString caption = shown(button.caption);
        const bool changed = visible && changed_.isChanged(static_cast<int>(i) + 1);
        race.setText(caption);
        race.setIcon(changed ? dot(button.current ? QColor{Qt::white} : palette().color(QPalette::ButtonText))
                             : QIcon{});
        race.setAccessibleName(changed ? tr("Race %1, changed by you").arg(caption)
                                       : tr("Race %1").arg(caption));
        const QString tip = tipOf(CommandId::RaceButton, QString::number(i + 1));
        race.setToolTip(changed ? tr("%1. You changed this race.").arg(tip) : tip);
        race.setStyleSheet(button.current ? currentStyle : "");
    }
    previous_->setEnabled(anyRace);
    next_->setEnabled(anyRace);
    placeRaces();
}

} // namespace quillon

#include "desktop/find_bar.h"

#include "desktop/cell_table_view.h"
#include "desktop/shown_text.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace quillon {
namespace {

constexpr int slice = 20;        ///< milliseconds of a search before the window has its turn
constexpr int longestText = 255; ///< no cell and few lines hold more
constexpr QColor darkRed{0xB0, 0x00, 0x20};
constexpr QColor lightRed{0xFF, 0x8A, 0x80};

bool isSearchable(QWidget* widget) {
    return qobject_cast<CellTableView*>(widget) || qobject_cast<QPlainTextEdit*>(widget);
}

// After the cursor and round the end; the cursor stays where nothing is found.
bool findInText(QPlainTextEdit& editor, const QString& text, bool backwards) {
    const auto flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags{};
    if (editor.find(text, flags)) return true;
    QTextCursor round{editor.document()};
    if (backwards) round.movePosition(QTextCursor::End);
    round = editor.document()->find(text, round, flags);
    if (round.isNull()) return false;
    editor.setTextCursor(round);
    return true;
}

} // namespace

FindBar::FindBar(QWidget* parent) : QWidget{parent} {
    setObjectName("FindBar");
    build();
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &FindBar::lookOn);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { keepTarget(focused); });
    hide();
}

void FindBar::build() {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(2, 2, 2, 2);
    auto* label = new QLabel{tr("&Find:"), this};
    row->addWidget(label);
    field_ = new QLineEdit{this};
    field_->setObjectName("FindField");
    field_->setAccessibleName(tr("Text to find"));
    field_->setClearButtonEnabled(true);
    field_->setMaxLength(longestText);
    field_->installEventFilter(this);
    connect(field_, &QLineEdit::textChanged, this, [this] {
        isNewText_ = true;
        stop({}, false);
    });
    label->setBuddy(field_);
    row->addWidget(field_, 1);

    const auto add = [&](const char* name, const QString& text, const QString& tip, auto&& slot) {
        auto* button = new QToolButton{this};
        button->setObjectName(name);
        button->setText(text);
        button->setAccessibleName(tip);
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, slot);
        row->addWidget(button);
    };
    add("FindNext", tr("Next"), tr("Go to the next place (Enter)"), [this] { findNext(); });
    add("FindPrevious", tr("Previous"), tr("Go to the place before (Shift+Enter)"),
        [this] { findNext(true); });
    words_ = new QLabel{this};
    words_->setObjectName("FindWords");
    words_->setTextFormat(Qt::PlainText);
    row->addWidget(words_);
    row->addStretch(1);
    add("FindClose", tr("Close"), tr("Close the search (Escape)"), [this] { closeBar(); });
}

void FindBar::keepTarget(QWidget* focused) {
    for (QWidget* widget = focused; widget; widget = widget->parentWidget())
        if (isSearchable(widget) && widget->window() == window()) last_ = widget;
}

QWidget* FindBar::target() const {
    if (last_ && last_->isVisible()) return last_;
    const auto children = window()->findChildren<QWidget*>();
    for (QWidget* widget : children)
        if (isSearchable(widget) && widget->isVisible() && widget->window() == window()) return widget;
    return nullptr;
}

void FindBar::open() {
    keepTarget(QApplication::focusWidget());
    stop({}, false);
    show();
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void FindBar::findNext(bool backwards) {
    if (field_->text().isEmpty()) return open();
    stop({}, false);
    if (findWider(backwards)) return;
    QWidget* place = target();
    if (auto* table = qobject_cast<CellTableView*>(place)) {
        search_.emplace(*table, field_->text(), backwards, isNewText_);
        isNewText_ = false;
        lookOn();
    } else if (auto* editor = qobject_cast<QPlainTextEdit*>(place)) {
        if (!findInText(*editor, field_->text(), backwards)) stop(tr("not found"), true);
    } else {
        stop(tr("nothing to search here"), true);
    }
}

bool FindBar::findWider(bool backwards) {
    if (!wider_.isThere || !wider_.isThere()) return false;
    const QString place = wider_.find(field_->text(), backwards);
    if (!place.isEmpty()) words_->setText(place);
    return !place.isEmpty();
}

void FindBar::lookOn() {
    if (!search_) return stop({}, false);
    switch (search_->lookOn(slice)) {
    case CellSearch::State::found: return stop({}, false);
    case CellSearch::State::notThere: return stop(tr("not found"), true);
    case CellSearch::State::goesOn: break;
    }
    words_->setText(tr("searching, %1% (Escape stops)").arg(search_->percent()));
    if (!timer_.isActive()) timer_.start();
}

void FindBar::stop(const QString& words, bool isBad) {
    timer_.stop();
    search_.reset();
    QPalette colours = palette();
    if (isBad) {
        const bool onLight = legibleOn(colours.color(QPalette::Window)) == Qt::black;
        colours.setColor(QPalette::WindowText, onLight ? darkRed : lightRed);
    }
    words_->setPalette(colours);
    words_->setText(words);
}

void FindBar::closeBar() {
    stop({}, false);
    QWidget* place = target(); // hiding the bar moves the focus to whatever comes next
    hide();
    if (place) place->setFocus();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == field_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            findNext(key->modifiers().testFlag(Qt::ShiftModifier));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    if (isSearching()) return stop(tr("stopped"), false);
    closeBar();
}

} // namespace quillon

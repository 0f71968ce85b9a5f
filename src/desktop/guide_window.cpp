#include "desktop/guide_window.h"

#include "desktop/window_size.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>
#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr const char* guide = "users-guide.md";
constexpr int points = 10;

QString contentOf(const QString& page) {
    QFile file{":/docs/" + page};
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString{};
}

} // namespace

QString withoutPictures(const QString& markdown) {
    static const QRegularExpression picture{R"(^!\[[^\]]*\]\([^)]*\)\s*$)",
                                            QRegularExpression::MultilineOption};
    return QString{markdown}.remove(picture);
}

QString anchorOf(const QString& heading) {
    static const QRegularExpression dropped{R"([^a-z0-9 -])"};
    return heading.toLower().remove(dropped).replace(' ', '-');
}

GuideWindow::GuideWindow(Appearance& appearance, QWidget* parent)
    : QDialog{parent, Qt::Window}, appearance_{appearance}, browser_{new QTextBrowser{this}} {
    setObjectName("Guide");
    setWindowTitle(tr("User's Guide"));
    browser_->setObjectName("GuideText");
    browser_->setAccessibleName(tr("User's guide"));
    browser_->setOpenLinks(false);
    connect(browser_, &QTextBrowser::anchorClicked, this, &GuideWindow::follow);
    auto* begin = new QPushButton{tr("&Contents"), this};
    begin->setObjectName("GuideContents");
    connect(begin, &QPushButton::clicked, this, [this] { openAt({}); });
    auto* close = new QPushButton{tr("&Close"), this};
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(begin);
    buttons->addStretch(1);
    buttons->addWidget(close);
    auto* column = new QVBoxLayout{this};
    column->addWidget(browser_, 1);
    column->addLayout(buttons);
    connect(&appearance_, &Appearance::changed, this, &GuideWindow::lay);
    lay();
    resizeWithinScreen(*this, {760, 640});
}

void GuideWindow::lay() {
    QFont font = this->font();
    font.setPointSizeF(points * appearance_.zoom() / 100.0);
    browser_->setFont(font);
}

void GuideWindow::load(const QString& page) {
    if (page == page_) return;
    const QString text = contentOf(page);
    if (text.isEmpty()) return;
    page_ = page;
    browser_->document()->setMarkdown(withoutPictures(text));
}

void GuideWindow::openAt(const QString& heading) {
    load(guide);
    goTo(anchorOf(heading));
}

void GuideWindow::goTo(const QString& anchor) {
    heading_.clear();
    browser_->moveCursor(QTextCursor::Start);
    for (QTextBlock block = browser_->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || anchorOf(block.text()) != anchor) continue;
        heading_ = block.text();
        browser_->setTextCursor(QTextCursor{block});
        const QRectF place = browser_->document()->documentLayout()->blockBoundingRect(block);
        browser_->verticalScrollBar()->setValue(static_cast<int>(place.top()));
        break;
    }
}

// A place in the guide, or another of its pages; all else is none of this window's.
void GuideWindow::follow(const QUrl& link) {
    if (!link.scheme().isEmpty()) return;
    if (!link.path().isEmpty()) load(link.path());
    goTo(link.fragment());
}

} // namespace quillon

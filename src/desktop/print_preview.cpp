#include "desktop/print_preview.h"

#include "desktop/appearance.h"
#include "desktop/window_size.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinterInfo>
#include <QScrollBar>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

constexpr qreal largestPoints = 10;
constexpr qreal smallestPoints = 5; ///< longer lines go on in the next row rather than become unreadable
constexpr int uprightCharacters = 100;
constexpr int tabWidth = 8;

QString withoutTabs(const QString& text) {
    if (!text.contains('\t')) return text;
    QString plain;
    for (const QChar character : text) {
        if (character == '\t')
            plain += QString(tabWidth - plain.size() % tabWidth, ' ');
        else
            plain += character;
    }
    return plain;
}

bool isEmpty(const std::vector<PrintedLine>& lines) {
    return std::all_of(lines.begin(), lines.end(),
                       [](const PrintedLine& line) { return line.text.trimmed().isEmpty(); });
}

/// How much of the document a page takes.
struct PageLayout {
    QFont font{};
    int columns = 1;
    int rows = 1;
    qreal lineHeight = 1;
};

qreal characterWidth(QFont font, const QPrinter& printer) {
    font.setBold(true); // the wider face, where they differ
    const int measured = 100;
    return QFontMetricsF{font, &printer}.horizontalAdvance(QString(measured, 'M')) / measured;
}

PageLayout layoutOf(const PrintDocument& document, const QPrinter& printer) {
    constexpr qreal step = 0.1;
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const int widest = std::max(1, widestLine(document));
    PageLayout layout;
    layout.font = fixedPitchFont();
    qreal points = largestPoints;
    layout.font.setPointSizeF(points);
    while (points - step >= smallestPoints && widest * characterWidth(layout.font, printer) > page.width()) {
        points -= step;
        layout.font.setPointSizeF(points);
    }
    layout.lineHeight = QFontMetricsF{layout.font, &printer}.lineSpacing();
    layout.columns = std::max(1, static_cast<int>(page.width() / characterWidth(layout.font, printer)));
    const int foot = 2; // rows: a free one, and the foot itself
    layout.rows = std::max(1, static_cast<int>(page.height() / layout.lineHeight) - foot);
    return layout;
}

void paintPage(QPainter& painter, const PageLayout& layout, const std::vector<PrintedLine>& lines) {
    QFont bold = layout.font;
    bold.setBold(true);
    qreal y = QFontMetricsF{layout.font, painter.device()}.ascent();
    for (const PrintedLine& line : lines) {
        painter.setFont(line.emphasised ? bold : layout.font);
        painter.drawText(QPointF{0, y}, line.text);
        y += layout.lineHeight;
    }
}

void paintFoot(QPainter& painter, const PageLayout& layout, const QRectF& page, const QString& name,
               const QString& place) {
    painter.setFont(layout.font);
    const QRectF foot{0, page.height() - layout.lineHeight, page.width(), layout.lineHeight};
    painter.drawText(foot, Qt::AlignLeft | Qt::TextSingleLine, name);
    painter.drawText(foot, Qt::AlignRight | Qt::TextSingleLine, place);
}

using Lines = std::vector<PrintedLine>;

// What belongs together, such as an entry with its lines, begins after a plain line with a bold or an empty one.
Lines::const_iterator endOfBlock(Lines::const_iterator line, Lines::const_iterator end) {
    const auto begins = [](const PrintedLine& next) {
        return next.emphasised || next.text.trimmed().isEmpty();
    };
    bool anyPlain = !begins(*line);
    for (++line; line != end; ++line) {
        if (anyPlain && begins(*line)) return line;
        anyPlain = anyPlain || !begins(*line);
    }
    return end;
}

// Lines that are too long go on in the next row.
Lines brokenLines(Lines::const_iterator line, Lines::const_iterator end, int columns) {
    Lines rows;
    for (; line != end; ++line) {
        qsizetype at = 0;
        do {
            rows.push_back({line->text.mid(at, columns), line->emphasised});
            at += columns;
        } while (at < line->text.size());
    }
    return rows;
}

} // namespace

void PrintDocument::addLine(const QString& text, bool emphasised) {
    sections.back().push_back({withoutTabs(text), emphasised});
}

int widestLine(const PrintDocument& document) {
    qsizetype widest = 0;
    for (const auto& section : document.sections)
        for (const PrintedLine& line : section) widest = std::max(widest, line.text.size());
    return static_cast<int>(widest);
}

bool wantsLandscape(const PrintDocument& document) { return widestLine(document) > uprightCharacters; }

std::vector<std::vector<PrintedLine>> pagesOf(const PrintDocument& document, int columns, int rows) {
    std::vector<std::vector<PrintedLine>> pages;
    const auto fullPage = static_cast<std::size_t>(rows);
    for (const auto& section : document.sections) {
        if (isEmpty(section)) continue;
        pages.emplace_back();
        for (auto line = section.begin(); line != section.end();) {
            const auto end = endOfBlock(line, section.end());
            const std::vector<PrintedLine> block = brokenLines(line, end, columns);
            const bool keptTogether = 2 * block.size() <= fullPage;
            if (keptTogether && pages.back().size() + block.size() > fullPage) pages.emplace_back();
            for (const PrintedLine& row : block) {
                if (pages.back().size() == fullPage) pages.emplace_back();
                pages.back().push_back(row);
            }
            line = end;
        }
    }
    return pages;
}

int pageCount(const QPrinter& printer, const PrintDocument& document) {
    const PageLayout layout = layoutOf(document, printer);
    return static_cast<int>(pagesOf(document, layout.columns, layout.rows).size());
}

bool print(QPrinter& printer, const PrintDocument& document) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const PageLayout layout = layoutOf(document, printer);
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const auto pages = pagesOf(document, layout.columns, layout.rows);
    const int first = printer.fromPage() > 0 ? printer.fromPage() : 1; // 0: the user named no pages
    const int last = printer.toPage() > 0 ? printer.toPage() : static_cast<int>(pages.size());
    for (int number = first; number <= std::min(last, static_cast<int>(pages.size())); ++number) {
        if (number > first && !printer.newPage()) return false;
        paintPage(painter, layout, pages[static_cast<std::size_t>(number - 1)]);
        paintFoot(painter, layout, page, document.name,
                  QObject::tr("Page %1 of %2").arg(number).arg(pages.size()));
    }
    return painter.end();
}

PrintPreview::PrintPreview(const PrintDocument& document, QWidget* parent)
    : QDialog{parent, Qt::Window}, job_{document.name, [document](QPrinter& printer) {
                                            return quillon::print(printer, document);
                                        }} {
    chooseOrientation(document);
    build();
}

PrintPreview::PrintPreview(PrintJob job, QWidget* parent)
    : QDialog{parent, Qt::Window}, job_{std::move(job)} {
    constexpr qreal margin = 12; // what any printer can leave
    printer_.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
    build();
    for (QAction* action : {portrait_, landscape_, afterOrientation_}) action->setVisible(false);
}

void PrintPreview::build() {
    setObjectName("PrintPreview");
    setWindowTitle(tr("Print - %1").arg(job_.name));
    printer_.setDocName(job_.name);
    printer_.setCreator("Quillon");
    preview_ = new QPrintPreviewWidget{&printer_, this};
    preview_->setAccessibleName(tr("Pages as they will be printed"));
    connect(preview_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { job_.print(*printer); });
    connect(preview_, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::showPlace);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    buildBar();
    column->addWidget(preview_, 1);
    preview_->fitToWidth();
    preview_->updatePreview();
    if (const auto* view = preview_->findChild<QGraphicsView*>())
        connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this, &PrintPreview::showPlace);
    status_ = new QStatusBar{this};
    column->addWidget(status_);
    resizeWithinScreen(*this, {900, 700});
}

// Long lines lie across the page, unless upright pages with smaller letters save half of the paper.
void PrintPreview::chooseOrientation(const PrintDocument& document) {
    const auto pagesAs = [&](QPageLayout::Orientation orientation) {
        printer_.setPageOrientation(orientation);
        return quillon::pageCount(printer_, document);
    };
    const int upright = pagesAs(QPageLayout::Portrait);
    if (!wantsLandscape(document)) return;
    const int across = pagesAs(QPageLayout::Landscape);
    if (2 * upright <= across) printer_.setPageOrientation(QPageLayout::Portrait);
}

// The page in the middle of the view, which is scrolled past the ends of pages.
int PrintPreview::pageOnShow() const {
    const auto* view = preview_->findChild<QGraphicsView*>();
    if (!view || !view->scene()) return preview_->currentPage();
    std::vector<qreal> tops;
    const auto items = view->scene()->items();
    for (const QGraphicsItem* item : items)
        if (!item->parentItem()) tops.push_back(item->sceneBoundingRect().top());
    const qreal middle = view->mapToScene(view->viewport()->rect().center()).y();
    const auto page = std::count_if(tops.begin(), tops.end(), [&](qreal top) { return top <= middle; });
    return std::max(1, static_cast<int>(page));
}

void PrintPreview::buildBar() {
    auto* bar = new QToolBar{this};
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const auto add = [&](const char* name, const QString& text, const QKeySequence& keys, const QString& tip,
                         auto&& slot) {
        QAction* action = bar->addAction(text);
        action->setObjectName(name);
        action->setShortcut(keys);
        action->setToolTip(keys.isEmpty() ? tip : tr("%1 (%2)").arg(tip, keys.toString()));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add("Print", tr("&Print..."), QKeySequence::Print, tr("Choose a printer and print"),
        [this] { askAndPrint(); });
    add("SavePdf", tr("&Save as PDF..."), QKeySequence::Save, tr("Write the pages to a PDF file"),
        [this] { askAndSavePdf(); });
    bar->addSeparator();
    portrait_ = add("Portrait", tr("P&ortrait"), {}, tr("Upright pages"), [this] { setLandscape(false); });
    landscape_ = add("Landscape", tr("&Landscape"), {}, tr("Pages on their side, for long lines"),
                     [this] { setLandscape(true); });
    auto* orientation = new QActionGroup{this};
    for (QAction* action : {portrait_, landscape_}) {
        action->setCheckable(true);
        orientation->addAction(action);
    }
    afterOrientation_ = bar->addSeparator();
    add("PreviousPage", tr("P&revious"), QKeySequence{"Ctrl+PgUp"}, tr("The page before"),
        [this] { preview_->setCurrentPage(pageOnShow() - 1); });
    place_ = new QLabel{bar};
    place_->setObjectName("PagePlace");
    bar->addWidget(place_);
    add("NextPage", tr("&Next"), QKeySequence{"Ctrl+PgDown"}, tr("The next page"),
        [this] { preview_->setCurrentPage(pageOnShow() + 1); });
    bar->addSeparator();
    add("ZoomIn", tr("Zoom &In"), QKeySequence{"Ctrl++"}, tr("Larger"), [this] { preview_->zoomIn(); });
    add("ZoomOut", tr("Zoom O&ut"), QKeySequence{"Ctrl+-"}, tr("Smaller"), [this] { preview_->zoomOut(); });
    add("WholePage", tr("&Whole Page"), QKeySequence{"Ctrl+0"}, tr("One page in the window"),
        [this] { preview_->fitInView(); });
    bar->addSeparator();
    add("Close", tr("&Close"), QKeySequence::Close, tr("Close the preview"), [this] { close(); });
    layout()->addWidget(bar);
    choices_ = new QToolBar{this};
    choices_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    choices_->hide();
    layout()->addWidget(choices_);
}

QAction* PrintPreview::addChoice(const char* name, const QString& text, const QKeySequence& keys,
                                 const QString& tip) {
    choices_->show();
    QAction* action = choices_->addAction(text);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setToolTip(tr("%1 (%2)").arg(tip, keys.toString()));
    return action;
}

void PrintPreview::partChoices() { choices_->addSeparator(); }

QPageSize::PageSizeId PrintPreview::paper() const { return printer_.pageLayout().pageSize().id(); }

void PrintPreview::setPaper(QPageSize::PageSizeId paper) {
    printer_.setPageSize(QPageSize{paper});
    drawAgain();
}

void PrintPreview::drawAgain() {
    preview_->updatePreview();
    showPlace();
}

int PrintPreview::pageCount() const { return preview_->pageCount(); }

bool PrintPreview::isLandscape() const { return preview_->orientation() == QPageLayout::Landscape; }

void PrintPreview::setLandscape(bool landscape) {
    preview_->setOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    showPlace();
}

void PrintPreview::showPlace() {
    place_->setText(tr(" Page %1 of %2 ").arg(pageOnShow()).arg(preview_->pageCount()));
    (isLandscape() ? landscape_ : portrait_)->setChecked(true);
}

void PrintPreview::askAndPrint() {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        status_->showMessage(tr("There is no printer here. Save the pages as a PDF file instead."));
        return;
    }
    QPrintDialog dialog{&printer_, this};
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, std::max(1, pageCount()));
    if (dialog.exec() != QDialog::Accepted) return;
    const bool printed = job_.print(printer_);
    printer_.setFromTo(0, 0); // the preview shows all pages again
    if (printed) return accept();
    QMessageBox::critical(this, windowTitle(), tr("The printer did not take the pages."));
}

void PrintPreview::askAndSavePdf() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save as PDF"), folder + "/" + job_.name + ".pdf", tr("PDF files (*.pdf)"));
    if (path.isEmpty() || savePdf(path)) return;
    QMessageBox::critical(this, windowTitle(), tr("The file can't be written: %1").arg(path));
}

bool PrintPreview::savePdf(const QString& path) {
    QPrinter file{QPrinter::HighResolution};
    file.setOutputFormat(QPrinter::PdfFormat);
    file.setOutputFileName(path);
    file.setPageLayout(printer_.pageLayout());
    file.setDocName(job_.name);
    file.setCreator("Quillon");
    return job_.print(file);
}

} // namespace quillon

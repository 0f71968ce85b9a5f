// Texts on paper: how lines become pages, and the preview from which they are printed.
#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QPageSize>
#include <QPrinter>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QLabel;
class QPrintPreviewWidget;
class QStatusBar;
class QToolBar;

namespace quillon {

struct PrintedLine {
    QString text{};
    bool emphasised = false;
    friend bool operator==(const PrintedLine&, const PrintedLine&) = default;
};

struct PrintDocument {
    QString name{};                                     ///< at the foot of each page
    std::vector<std::vector<PrintedLine>> sections{{}}; ///< each begins a page

    void addLine(const QString& text, bool emphasised = false);
    void beginPage() { sections.emplace_back(); }
};

/// Characters of the longest line, tabs as blanks.
int widestLine(const PrintDocument& document);

/// Lines too long for an upright page of a readable size.
bool wantsLandscape(const PrintDocument& document);

/// The lines of each page, `rows` at most, a longer line than `columns` going on in the next row. Sections
/// without a text make no page. A bold or empty line and the plain ones after it stand on one page, where they
/// are no more than half of one.
std::vector<std::vector<PrintedLine>> pagesOf(const PrintDocument& document, int columns, int rows);

/// Pages of the document on the printer's paper.
int pageCount(const QPrinter& printer, const PrintDocument& document);

/// Prints the document on the printer's paper: fixed pitch, as large as the widest line allows, at most 10
/// points. False where the printer can't begin, or its file not be written.
bool print(QPrinter& printer, const PrintDocument& document);

/// Pages of any kind: their name, and how they are drawn on a printer's paper.
struct PrintJob {
    QString name{};
    std::function<bool(QPrinter& printer)> print{};
};

class PrintPreview : public QDialog {
    Q_OBJECT

public:
    explicit PrintPreview(const PrintDocument& document, QWidget* parent = nullptr);

    /// Pages that are laid out for upright paper alone.
    explicit PrintPreview(PrintJob job, QWidget* parent = nullptr);

    int pageCount() const;
    bool isLandscape() const;
    void setLandscape(bool landscape);

    /// False where the file can't be written.
    bool savePdf(const QString& path);

protected:
    QPageSize::PageSizeId paper() const;
    void setPaper(QPageSize::PageSizeId paper);
    void drawAgain();

    /// A choice of the user's in a bar below the first.
    QAction* addChoice(const char* name, const QString& text, const QKeySequence& keys, const QString& tip);
    void partChoices(); ///< those so far from the next

private:
    void build();
    void chooseOrientation(const PrintDocument& document);
    int pageOnShow() const;
    void buildBar();
    void showPlace();
    void askAndPrint();
    void askAndSavePdf();

    PrintJob job_;
    QPrinter printer_{QPrinter::HighResolution};
    QPrintPreviewWidget* preview_ = nullptr;
    QToolBar* choices_ = nullptr;
    QAction* afterOrientation_ = nullptr;
    QAction* landscape_ = nullptr;
    QAction* portrait_ = nullptr;
    QLabel* place_ = nullptr;
    QStatusBar* status_ = nullptr;
};

} // namespace quillon

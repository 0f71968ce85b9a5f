// Texts on paper: how lines become pages, and the preview from which they are printed.
#pragma once

#include <QDialog>
#include <QPrinter>
#include <QString>

#include <vector>

class QAction;
class QLabel;
class QPrintPreviewWidget;
class QStatusBar;

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

class PrintPreview : public QDialog {
    Q_OBJECT

public:
    explicit PrintPreview(PrintDocument document, QWidget* parent = nullptr);

    int pageCount() const;
    bool isLandscape() const;
    void setLandscape(bool landscape);

    /// False where the file can't be written.
    bool savePdf(const QString& path);

private:
    void chooseOrientation();
    int pageOnShow() const;
    void buildBar();
    void showPlace();
    void askAndPrint();
    void askAndSavePdf();

    PrintDocument document_;
    QPrinter printer_{QPrinter::HighResolution};
    QPrintPreviewWidget* preview_ = nullptr;
    QAction* landscape_ = nullptr;
    QAction* portrait_ = nullptr;
    QLabel* place_ = nullptr;
    QStatusBar* status_ = nullptr;
};

} // namespace quillon

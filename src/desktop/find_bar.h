// Find in the table or text that has the focus.
#pragma once

#include "desktop/cell_search.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>

class QLabel;
class QLineEdit;

namespace quillon {

/// A row with a field, hidden until it is asked for. Enter goes on to the next place, Shift+Enter back,
/// Escape ends a search that is under way, or closes the bar.
class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);

    /// Opens the bar and takes the focus; searches the table or text of its window that has the focus or had
    /// it last, or else the first one in sight.
    void open();
    void findNext(bool backwards = false);

    /// Something wider to look through before the table on show, such as the whole card.
    struct WiderSearch {
        std::function<bool()> isThere;
        std::function<QString(const QString& text, bool backwards)> find; ///< where it went; empty: nowhere
    };
    void searchFirst(WiderSearch wider) { wider_ = std::move(wider); }

    bool isSearching() const { return search_.has_value(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void keepTarget(QWidget* focused);
    QWidget* target() const;
    void lookOn();
    void stop(const QString& words, bool isBad);
    void closeBar();
    bool findWider(bool backwards);

    QLineEdit* field_ = nullptr;
    QLabel* words_ = nullptr;
    WiderSearch wider_;
    QPointer<QWidget> last_; ///< the table or text that had the focus last
    std::optional<CellSearch> search_;
    bool isNewText_ = true; ///< not searched yet, so that the current cell counts too
    QTimer timer_;          ///< of the next step of a long search
};

} // namespace quillon

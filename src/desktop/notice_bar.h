// What the user has to know, in lines that stay above the races until they are read or have become untrue.
#pragma once

#include "desktop/appearance.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWidget>

#include <functional>
#include <vector>

namespace quillon {

/// A button of a line.
struct NoticeAction {
    QString caption{};
    std::function<void()> act{};
};

/// A line of the bar. One of the same key takes its place.
struct Notice {
    QString key{};
    QString text{};
    std::vector<NoticeAction> actions{};
};

/// The newest line stands first. A few are in sight, the others are scrolled to.
class NoticeBar : public QWidget {
    Q_OBJECT

public:
    explicit NoticeBar(Appearance& appearance, QWidget* parent = nullptr);

    void put(const Notice& notice);
    void take(const QString& key);
    QString textOf(const QString& key) const; ///< empty where there is none

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Line {
        QString key;
        QWidget* row;
        QLabel* text;
        QHBoxLayout* buttons; ///< of its actions
    };

    void addLine(const QString& key);
    void setActions(const Line& line, const std::vector<NoticeAction>& actions);
    Line* find(const QString& key);
    void takeAllRead();
    void lay();
    void holdHeight();

    Appearance& appearance_;
    QScrollArea* scroll_;
    QVBoxLayout* column_; ///< of the lines
    QPushButton* all_;
    std::vector<Line> lines_; ///< the newest last
};

} // namespace quillon

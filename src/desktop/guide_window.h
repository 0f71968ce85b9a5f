// The user's guide in a window of its own, open at what the user has before him.
#pragma once

#include "desktop/appearance.h"

#include <QDialog>
#include <QTextBrowser>

namespace quillon {

class GuideWindow : public QDialog {
    Q_OBJECT

public:
    explicit GuideWindow(Appearance& appearance, QWidget* parent = nullptr);

    /// Goes to this heading of the guide, or to its beginning where it has no such heading. The window must be
    /// on the screen: before that a text has no height.
    void openAt(const QString& heading);

    /// The heading that the view begins with.
    QString heading() const { return heading_; }

private:
    void follow(const QUrl& link);
    void load(const QString& page);
    void goTo(const QString& anchor);
    void lay();

    Appearance& appearance_;
    QTextBrowser* browser_;
    QString page_; ///< the file on show
    QString heading_;
};

/// The pictures of a text in Markdown left out: the program does not carry them.
QString withoutPictures(const QString& markdown);

/// What a link calls a heading: "Dead heats" is "dead-heats".
QString anchorOf(const QString& heading);

} // namespace quillon

// Between the system's texts, colours and twips and those of the window.
#pragma once

#include "core/text.h"
#include "screen/screen.h"

#include <QColor>
#include <QString>

namespace quillon {

/// The screen, by a name that QWidget::screen() does not hide. Widgets read it and never write it.
inline const Screen& theScreen = quillon::screen;

/// Whether a card was loaded or recalled, and not closed since.
bool cardIsOpen();

/// A text of the system as the window shows it.
QString shown(TextView text);

/// A tip that shows a text as it stands, also where it looks like markup.
QString asTip(const QString& text);

/// What the user typed or pasted, as a text of the system: line breaks and other control characters become
/// blanks, so that no file of ours gets a line more, and characters outside the code page become "?".
Text typed(const QString& text);

inline QColor shown(Colour colour) { return {colour.red, colour.green, colour.blue}; }

/// Black or white, whichever can be read on this background.
QColor legibleOn(const QColor& background);

} // namespace quillon

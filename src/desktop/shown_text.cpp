#include "desktop/shown_text.h"

#include "card/race_card.h"
#include "core/code_page.h"

#include <QTextDocument>

namespace quillon {

bool cardIsOpen() { return !card.cardFileName.empty(); }

QString shown(TextView text) { return QString::fromStdString(toUtf8(text)); }

QString asTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return "<qt>" + text.toHtmlEscaped().replace('\n', "<br>") + "</qt>";
}

Text typed(const QString& text) {
    constexpr QChar lineSeparator{0x2028};
    constexpr QChar paragraphSeparator{0x2029};
    QString plain = text;
    for (QChar& character : plain) {
        const bool isControl = character < QChar{' '} || character == QChar{0x7F};
        if (isControl || character == lineSeparator || character == paragraphSeparator)
            character = QChar{' '};
    }
    return fromUtf8(plain.toStdString());
}

QColor legibleOn(const QColor& background) {
    // Weights of the eye for red, green and blue; above the middle the background counts as light.
    const double lightness =
        0.299 * background.red() + 0.587 * background.green() + 0.114 * background.blue();
    return lightness > 127.5 ? Qt::black : Qt::white;
}

} // namespace quillon

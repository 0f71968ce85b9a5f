#include "desktop/command_texts.h"

#include "desktop/shown_text.h"

#include <QVariant>

namespace quillon {
namespace {

QString hintOf(CommandId id) { return QObject::tr(command(id).item.hint); }

} // namespace

QString nameOf(CommandId id) { return command(id).name; }

QString captionOf(CommandId id) { return shown(command(id).item.caption).simplified(); }

// An "&" of a caption would underline the letter after it.
QString buttonCaption(CommandId id) { return captionOf(id).replace("&", "&&"); }

QString tipOf(CommandId id) {
    const QString keys = command(id).item.keys;
    return keys.isEmpty() ? hintOf(id) : QString{"%1 (%2)"}.arg(hintOf(id), keys);
}

QString tipOf(CommandId id, const QString& whom) { return hintOf(id).arg(whom); }

void setCommand(QObject& sender, CommandId id) { sender.setProperty("command", nameOf(id)); }

} // namespace quillon

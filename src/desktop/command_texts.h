// What the command table says of a command, as the window shows it.
#pragma once

#include "app/commands.h"

#include <QObject>
#include <QString>

namespace quillon {

/// Its proper name, by which widgets and actions are found.
QString nameOf(CommandId id);

/// The caption as a button shows it, and plain, for whoever is told it.
QString buttonCaption(CommandId id);
QString captionOf(CommandId id);

/// The hint, and the key that does the same: "Back to the races (Ctrl+M)".
QString tipOf(CommandId id);

/// The hint of a button that stands in a row of many, with the race or horse that it is for.
QString tipOf(CommandId id, const QString& whom);

/// Notes the command on a widget or action that sends it, for whoever looks for its sender.
void setCommand(QObject& sender, CommandId id);

} // namespace quillon

#include "desktop/choice_dialog.h"

namespace quillon {

ChoiceDialog::ChoiceDialog(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QDialog{parent}, runner_{runner}, appearance_{appearance} {}

void ChoiceDialog::refresh() {}

} // namespace quillon

#include "desktop/fault_journal_dialog.h"

namespace quillon {

FaultJournalDialog::FaultJournalDialog(Appearance&, QWidget* parent) : QDialog{parent} {}

void FaultJournalDialog::refresh() {}

} // namespace quillon

// What the failure policy passed over, for the user who asks: readable, and to be copied.
#pragma once

#include "desktop/appearance.h"

#include <QDialog>

namespace quillon {

class FaultJournalDialog : public QDialog {
    Q_OBJECT

public:
    explicit FaultJournalDialog(Appearance& appearance, QWidget* parent = nullptr);

    /// Takes up the journal as it stands.
    void refresh();
};

} // namespace quillon

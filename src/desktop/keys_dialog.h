// All keys of the window, as its menus have them.
#pragma once

#include <QDialog>
#include <QMenuBar>

namespace quillon {

class KeysDialog : public QDialog {
    Q_OBJECT

public:
    /// Lists the items of these menus that have a key.
    explicit KeysDialog(const QMenuBar& menus, QWidget* parent = nullptr);
};

} // namespace quillon

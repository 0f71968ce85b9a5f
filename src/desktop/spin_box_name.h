// What a screen reader says of a spin box: of the box, and of the field in it that has the keys.
#pragma once

#include <QAbstractSpinBox>
#include <QLineEdit>

namespace quillon {

inline void nameSpinBox(QAbstractSpinBox& box, const QString& name) {
    box.setAccessibleName(name);
    if (auto* field = box.findChild<QLineEdit*>()) field->setAccessibleName(name);
}

} // namespace quillon

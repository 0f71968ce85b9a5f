#include "desktop/find_bar.h"

namespace quillon {

FindBar::FindBar(QWidget* parent) : QWidget{parent} { hide(); }

void FindBar::open() {}

void FindBar::findNext(bool) {}

} // namespace quillon

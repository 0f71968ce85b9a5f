#include "source/source_tables.h"

namespace quillon {

SourceTables sourceTables;
SourceLine sourceLine;

} // namespace quillon

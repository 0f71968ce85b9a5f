#include "app/help.h"

#include "reports/report_writer.h"
#include "screen/ports.h"

namespace quillon {

void About() {
    Text about = "Quillon Professional Version\n";
    about += publisherLines.front();
    ports.message(about, "");
}

void Version() { ports.message("Quillon Professional v3.1", ""); }

} // namespace quillon

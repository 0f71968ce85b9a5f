#include "app/settings_editors.h"

#include "core/failure.h"
#include "reports/viewers.h"

namespace quillon {

void ArchivesEditor() {
    const Step step{"ArchivesEditor"};
    showInViewer({Folder::working, "HRA.ini"});
}

void TrackEditor() {
    const Step step{"TrackEditor"};
    showInViewer({Folder::working, "TrackEditor.ini"});
}

void EXE() {
    const Step step{"EXE"};
    showInViewer({Folder::working, "Webpage.ini"});
}

} // namespace quillon

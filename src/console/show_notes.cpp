#include "console/show_notes.h"

#include "cardfiles/notes.h"

namespace quillon {

void showNotes(TextView name, Transcript& transcript) {
    if (trimmed(name).empty()) return transcript.line("usage: show notes NAME");
    notes.takeUp();
    for (const NoteLine& note : notes.on(name))
        transcript.line(note.date + "\t" + note.card + "\t" + note.text);
}

} // namespace quillon

// Notes on horses, drivers, trainers and races, kept from card to card in one file that any editor opens.
//
// "Notes.txt" is UTF-8, a note a line: the date and the name of the card it was written on, whom it is on, and
// its text, a tab between each. Lines of another form are nobody's note and stay as they are: the file is only ever
// added to, so that what other programs wrote there meanwhile stays as well.
#pragma once

#include "core/files.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

namespace quillon {

struct NoteLine {
    Text date{}; ///< of the card, yyyymmdd
    Text card{}; ///< its name: "MVR_20260314"
    Text name{}; ///< of the horse, driver or trainer, or nameOfRace()
    Text text{};
    bool operator==(const NoteLine&) const = default;
};

/// What `Note` is given: "Bold Eagle = likes the rail".
struct NoteWords {
    Text name;
    Text text;
};

/// Taken apart at the first "=", without blanks at the ends and with blanks for control characters. Nothing
/// without a name or a text.
std::optional<NoteWords> noteWords(TextView words);

/// Adds a note, dated as the open card is. The user is told when the file can't be written.
void Note(const Text& words);

/// What notes on a race are on: "Race 3". They belong to the card that they were written on.
Text nameOfRace(int race);

/// What tonight's odds on an entry of the open card are kept under, by its program number. The last of them counts.
Text nameOfOdds(int race, TextView number);

/// Keeps them as typed; empty ones too.
void keepOdds(int race, TextView number, TextView odds);

/// The notes of the file as it was when it was last taken up.
class Notes {
public:
    /// Reads the file where it has changed since.
    void takeUp();

    /// The notes on a horse, driver or trainer in the order of the file, whatever the case of the name and the
    /// blanks at its ends.
    std::vector<NoteLine> on(TextView name) const;

    /// Those on a race of the open card.
    std::vector<NoteLine> onRace(int race) const;

    /// Tonight's odds as typed; empty where nothing was.
    Text odds(int race, TextView number) const;

private:
    std::vector<NoteLine> onThisCard(TextView name) const;
    void read(TextView content);

    std::optional<FileStamp> stamp_;
    std::vector<NoteLine> lines_;
    std::unordered_map<Text, std::vector<std::size_t>> byName_; ///< as they are compared
};

extern Notes notes;

} // namespace quillon

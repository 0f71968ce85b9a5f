// How every report is made: line by line from pictures into a buffer, and from there a file, whole or not at
// all.
//
// A picture shows a line as it will stand: a run of @ is a text right-aligned in that many places, {} a text
// as it is, all else stands for itself. A text too long for its places stays whole and moves what follows to
// the right.
//
//     sheet.line("@@@@  @@@  {}", programNumber, post, name);
#pragma once

#include "core/files.h"
#include "core/text.h"

#include <array>
#include <span>

namespace quillon {

/// A field of a picture: where it begins and how many characters of the picture it takes; none at the end.
struct PictureField {
    std::size_t start = 0;
    std::size_t length = 0;
};

constexpr PictureField fieldFrom(TextView picture, std::size_t from) {
    const std::size_t run = picture.find('@', from);
    const std::size_t whole = picture.find("{}", from);
    if (whole < run) return {whole, 2};
    if (run == TextView::npos) return {picture.size(), 0};
    const std::size_t behind = picture.find_first_not_of('@', run);
    return {run, (behind == TextView::npos ? picture.size() : behind) - run};
}

constexpr std::size_t fieldCount(TextView picture) {
    std::size_t count = 0;
    for (PictureField field = fieldFrom(picture, 0); field.length > 0;
         field = fieldFrom(picture, field.start + field.length))
        ++count;
    return count;
}

/// A picture whose fields the compiler has found.
template <std::size_t Fields>
class Picture {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is a picture
    consteval Picture(const char* picture) : text(picture) {
        if (fieldCount(text) != Fields) throw "the fields of a picture and its values differ in number";
        std::size_t from = 0;
        for (PictureField& field : fields) {
            field = fieldFrom(text, from);
            from = field.start + field.length;
        }
    }

    TextView text;
    std::array<PictureField, Fields> fields{};
};

class ReportWriter {
public:
    /// Adds a line with its end.
    template <class... Values>
    void line(Picture<sizeof...(Values)> picture, const Values&... values) {
        part(picture, values...);
        content_ += crLf;
    }

    /// Adds a piece of a line.
    template <class... Values>
    void part(Picture<sizeof...(Values)> picture, const Values&... values) {
        const std::array<TextView, sizeof...(Values)> texts{TextView{values}...};
        add(picture.text, picture.fields, texts);
    }

    void endLine() { content_ += crLf; }

    /// Adds a line that holds one carriage return.
    void returnLine() { content_ += crCrLf; }

    const Text& content() const { return content_; }

private:
    void add(TextView picture, std::span<const PictureField> fields, std::span<const TextView> values);

    Text content_;
};

/// The three lines under the title of a sheet: who publishes it.
inline constexpr std::array<TextView, 3> publisherLines{
    "Tarnbeck Software",
    "Handicapping for harness racing, trot and pace",
    "Questions and ideas: the Quillon desk at Tarnbeck Software",
};

/// The lines that begin a sheet of the open card: title, publisher, track, date (mm-dd-yyyy), an empty one.
void addCardHead(ReportWriter& report, TextView title);

/// The two of them that tell the meeting: track code and description, and the date.
void addMeeting(ReportWriter& report);

} // namespace quillon

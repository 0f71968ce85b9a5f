#include "desktop/editable_text.h"

#include "core/code_page.h"
#include "core/files.h"
#include "desktop/shown_text.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr char16_t controlPictures = 0x2400; ///< the picture of character n stands n places on
constexpr char16_t picturedDelete = 0x2421;
constexpr char16_t deleteCharacter = 0x7F;
constexpr std::size_t farthest = 1000; ///< lines looked ahead for the place where old and new meet again

/// How far old and new are apart: so many lines are gone, so many are new.
struct Change {
    std::size_t gone = 0;
    std::size_t added = 0;
};

bool meet(const std::vector<FileLine>& old, const std::vector<Text>& lines, std::size_t oldAt,
          std::size_t newAt) {
    if (oldAt == old.size() || newAt == lines.size()) return oldAt == old.size() && newAt == lines.size();
    return old[oldAt].text == lines[newAt];
}

// The smallest change after which old and new are the same again. Lines that were changed one by one come
// first, then those put in or taken out.
Change changeAt(const std::vector<FileLine>& old, const std::vector<Text>& lines, std::size_t oldAt,
                std::size_t newAt) {
    const std::size_t oldLeft = old.size() - oldAt;
    const std::size_t newLeft = lines.size() - newAt;
    for (std::size_t far = 1; far <= farthest; ++far) {
        if (far <= oldLeft && far <= newLeft && meet(old, lines, oldAt + far, newAt + far)) return {far, far};
        if (far <= newLeft && meet(old, lines, oldAt, newAt + far)) return {0, far};
        if (far <= oldLeft && meet(old, lines, oldAt + far, newAt)) return {far, 0};
    }
    return {1, 1};
}

// The end that each line had before.
std::vector<TextView> keptEnds(const std::vector<FileLine>& old, const std::vector<Text>& lines) {
    std::vector<TextView> ends(lines.size(), crLf);
    std::size_t oldAt = 0;
    std::size_t newAt = 0;
    while (newAt < lines.size() && oldAt < old.size()) {
        Change change{1, 1};
        if (!meet(old, lines, oldAt, newAt)) change = changeAt(old, lines, oldAt, newAt);
        for (std::size_t i = 0; i < std::min(change.gone, change.added); ++i)
            ends[newAt + i] = old[oldAt + i].end;
        oldAt += change.gone;
        newAt += change.added;
    }
    return ends;
}

} // namespace

std::vector<FileLine> fileLines(TextView content) {
    std::vector<FileLine> lines;
    for (auto lineFeed = content.find('\n'); lineFeed != TextView::npos; lineFeed = content.find('\n')) {
        const TextView line = content.substr(0, lineFeed);
        const std::size_t length = line.find_last_not_of('\r') + 1;
        lines.push_back({Text{line.substr(0, length)}, Text{content.substr(length, lineFeed + 1 - length)}});
        content.remove_prefix(lineFeed + 1);
    }
    lines.push_back({Text{content}, ""});
    return lines;
}

QString editableLine(TextView text) {
    QString line = shown(text);
    for (QChar& character : line) {
        const char16_t code = character.unicode();
        if (code < u' ' && code != u'\t') character = QChar{static_cast<char16_t>(controlPictures + code)};
        if (code == deleteCharacter) character = QChar{picturedDelete};
    }
    return line;
}

Text editedLine(const QString& line) {
    QString text = line;
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code >= controlPictures && code < controlPictures + u' ')
            character = QChar{static_cast<char16_t>(code - controlPictures)};
        if (code == picturedDelete) character = QChar{deleteCharacter};
    }
    return fromUtf8(text.toStdString());
}

bool canBeKept(const QString& line, const Text& edited) {
    return line.count('?') == std::count(edited.begin(), edited.end(), '?');
}

Text editedContent(const std::vector<FileLine>& old, const std::vector<Text>& lines) {
    const std::vector<TextView> ends = keptEnds(old, lines);
    Text content;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        content += lines[i];
        if (i + 1 < lines.size()) content += ends[i].empty() ? crLf : ends[i];
    }
    return content;
}

} // namespace quillon

#include "reports/report_writer.h"

#include "card/race_card.h"
#include "core/dates.h"

namespace quillon {

void ReportWriter::add(TextView picture, std::span<const PictureField> fields,
                       std::span<const TextView> values) {
    std::size_t from = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto [start, length] = fields[i];
        const TextView value = values[i];
        content_ += picture.substr(from, start - from);
        const bool asItIs = picture[start] == '{';
        if (!asItIs && value.size() < length) content_.append(length - value.size(), blank);
        content_ += value;
        from = start + length;
    }
    content_ += picture.substr(from);
}

void addMeeting(ReportWriter& report) {
    const RaceInfo& first = card.raceInfo[{1}];
    report.line("{} {}", first.trackCode, first.trackInfo);
    report.line("{}", dashedDate(card.cardDate));
}

void addCardHead(ReportWriter& report, TextView title) {
    report.line("{}", title);
    for (const TextView line : publisherLines) report.line("{}", line);
    addMeeting(report);
    report.line("");
}

} // namespace quillon

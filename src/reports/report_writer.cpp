#include "reports/report_writer.h"

#include "core/dates.h"
#include "core/race_card.h"

namespace quillon {

void ReportWriter::add(TextView picture, std::span<const TextView> values) {
    std::size_t from = 0;
    for (const TextView value : values) {
        const PictureField field = fieldFrom(picture, from);
        content_ += picture.substr(from, field.start - from);
        const bool asItIs = picture[field.start] == '{';
        if (!asItIs && value.size() < field.length) content_.append(field.length - value.size(), blank);
        content_ += value;
        from = field.start + field.length;
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

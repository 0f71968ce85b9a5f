#include "desktop/shade_legend.h"

#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QDate>
#include <QHBoxLayout>

namespace quillon {
namespace {

constexpr int recentDays = 33;
constexpr int olderDays = 50;

// "33 days: since 20260209", the dates as the lines have them.
QString withLimit(const QString& shade, int days) {
    constexpr const char* format = "yyyyMMdd";
    const QDate day = QDate::fromString(shown(theScreen.header.date.caption).trimmed(), format);
    return day.isValid() ? ShadeLegend::tr("%1: since %2").arg(shade, day.addDays(-days).toString(format))
                         : shade;
}

QLabel* swatch(const char* name, Colour colour, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    const QColor background = shown(colour);
    label->setStyleSheet(QString{"background-color: %1; color: %2; padding: 1px 6px;"}.arg(
        background.name(), legibleOn(background).name()));
    return label;
}

} // namespace

ShadeLegend::ShadeLegend(QWidget* parent) : QWidget{parent} {
    recent_ = swatch("RecentLines", recentYellow, this);
    recent_->setToolTip(tr("The lines that the rating looks at first: at most 33 days old on the day of the "
                           "card. Where these don't do, older ones are added. The shade begins with an "
                           "entry's latest line whatever its age, and may take in one line more."));
    older_ = swatch("OlderLines", olderCyan, this);
    older_->setToolTip(tr("The lines after them that are at most 50 days old. The shade may take in one "
                          "line more."));
    latest_ = new QLabel{this};
    latest_->setObjectName("LatestLines");
    latest_->setTextFormat(Qt::PlainText);
    latest_->setToolTip(recent_->toolTip());
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(recent_);
    row->addWidget(older_);
    row->addWidget(latest_);
}

void ShadeLegend::showFor(const Grid& lines) {
    recent_->setText(withLimit(tr("33 days"), recentDays));
    older_->setText(withLimit(tr("50 days"), olderDays));
    latest_->setText(tr("latest line: always shaded"));
    setVisible(hasShadedLines(lines));
}

void ShadeLegend::setTextFont(const QFont& font) {
    recent_->setFont(font);
    older_->setFont(font);
    latest_->setFont(font);
}

} // namespace quillon

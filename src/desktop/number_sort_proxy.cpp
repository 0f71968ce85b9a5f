#include "desktop/number_sort_proxy.h"

#include <algorithm>
#include <optional>

namespace quillon {
namespace {

/// The number that a text is, with blanks and "$" before it and "%" after it; nothing where it is no number.
std::optional<double> wholeNumber(const QString& text) {
    QString number = text.trimmed();
    if (number.startsWith('$')) number = number.mid(1).trimmed();
    if (number.endsWith('%')) number.chop(1);
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok ? std::optional{value} : std::nullopt;
}

/// The figures that a text begins with; nothing where it begins with none.
std::optional<int> numberInFront(const QString& text) {
    const auto isFigure = [](QChar character) { return character >= '0' && character <= '9'; };
    const auto end = std::find_if_not(text.begin(), text.end(), isFigure);
    bool ok = false;
    const int value = text.left(end - text.begin()).toInt(&ok);
    return ok ? std::optional{value} : std::nullopt;
}

} // namespace

bool NumberSortProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    if (left.column() < rowOrderColumns_) return left.row() < right.row();
    const QString a = left.data().toString();
    const QString b = right.data().toString();
    const auto first = wholeNumber(a);
    const auto second = wholeNumber(b);
    if (first && second) return *first < *second;
    if (first || second) return first.has_value(); // numbers before words
    const auto firstFront = numberInFront(a);
    const auto secondFront = numberInFront(b);
    if (firstFront && secondFront && *firstFront != *secondFront) return *firstFront < *secondFront;
    return a.localeAwareCompare(b) < 0;
}

} // namespace quillon

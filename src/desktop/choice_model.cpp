#include "desktop/choice_model.h"

#include "desktop/shown_text.h"

#include <QDate>
#include <QLocale>

namespace quillon {
namespace {

constexpr int onlyNames = 1; ///< columns of a list that is none of cards

/// "20260314" of "M1_20260314.pmd"; empty where the name is none of a card's.
QString dateDigits(const QString& name) {
    constexpr int digits = 8;
    const auto underscore = name.indexOf('_');
    const QString text = underscore < 0 ? QString{} : name.mid(underscore + 1, digits);
    return QDate::fromString(text, "yyyyMMdd").isValid() ? text : QString{};
}

/// By name, lines without one after all names, and the way out last.
QString sortKey(const QString& name) {
    if (name.trimmed() == "EXIT") return QChar{0xFFFD};
    return name.trimmed().isEmpty() ? QString{QChar{0xFFFC}} : name;
}

} // namespace

ChoiceModel::ChoiceModel(const ChoiceList& list, bool ofCards, QObject* parent)
    : QAbstractTableModel{parent}, list_{list}, ofCards_{ofCards} {}

void ChoiceModel::refresh() {
    if (lines_ == list_.lines) return;
    beginResetModel();
    lines_ = list_.lines;
    endResetModel();
}

int ChoiceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int ChoiceModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return ofCards_ ? columns : onlyNames;
}

QString ChoiceModel::cell(const Text& line, int column) const {
    const QString name = shown(line);
    if (column == fileName) return name;
    const QString digits = dateDigits(name);
    if (digits.isEmpty()) return {};
    if (column == track) return name.left(name.indexOf('_'));
    return QLocale{}.toString(QDate::fromString(digits, "yyyyMMdd"), "ddd d MMM yyyy");
}

QVariant ChoiceModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Text& text = line(index.row());
    if (role == Qt::DisplayRole) return cell(text, index.column());
    if (role == sortRole && !ofCards_) return sortKey(shown(text));
    if (role == sortRole)
        return index.column() == date ? dateDigits(shown(text)) : cell(text, index.column());
    return {};
}

QVariant ChoiceModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || !ofCards_) return {};
    return section == fileName ? tr("File") : section == track ? tr("Track") : tr("Date");
}

// The rule between the tracks and "EXIT" is no choice.
Qt::ItemFlags ChoiceModel::flags(const QModelIndex& index) const {
    const bool isRule = index.isValid() && line(index.row()).find_first_not_of('-') == Text::npos;
    return isRule ? Qt::ItemFlags{} : QAbstractTableModel::flags(index);
}

} // namespace quillon

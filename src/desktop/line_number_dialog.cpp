#include "desktop/line_number_dialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr int longestInput = 255;

QLabel* plainLabel(const char* name, const QString& text, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

} // namespace

LineNumberDialog::LineNumberDialog(const QString& text, const LineNumberAsked& asked, QWidget* parent)
    : QDialog{parent}, asked_{asked}, field_{new QLineEdit{this}}, refusal_{
                                                                       plainLabel("LineRefusal", {}, this)} {
    setObjectName("LineNumberDialog");
    const QString whose = asked.first == asked.last
                              ? tr("%1, line %2").arg(asked.horse).arg(asked.first)
                              : tr("%1, lines %2 to %3").arg(asked.horse).arg(asked.first).arg(asked.last);
    auto* name = plainLabel("LineWhose", whose, this);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    field_->setObjectName("LineNumber");
    field_->setMaxLength(longestInput);
    field_->setAccessibleName(whose);
    auto* buttons = new QDialogButtonBox{QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this};
    connect(buttons, &QDialogButtonBox::accepted, this, &LineNumberDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LineNumberDialog::reject);
    auto* column = new QVBoxLayout{this};
    column->addWidget(name);
    column->addWidget(plainLabel("LineQuestion", text, this));
    column->addWidget(field_);
    column->addWidget(refusal_);
    column->addWidget(buttons);
    refusal_->hide();
}

void LineNumberDialog::accept() {
    bool isNumber = false;
    const int number = field_->text().trimmed().toInt(&isNumber);
    if (isNumber && number >= asked_.first && number <= asked_.last) return QDialog::accept();
    const QString typed = field_->text().trimmed();
    QString refusal = tr("Type the number of a line");
    if (!typed.isEmpty())
        refusal = isNumber ? tr("%1 is none of his lines").arg(typed) : tr("\"%1\" is no number").arg(typed);
    refusal_->setText(refusal);
    refusal_->show();
    field_->selectAll();
    field_->setFocus();
}

} // namespace quillon

#include "trend/widgets/frmXlblSet.h"

#include "base/LanguageTable.h"
#include "base/NumberText.h"
#include "trend/TrendView.h"
#include "trend/widgets/DialogParts.h"
#include "trend/widgets/TrendTexts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

double unitMs(XlblSet::Unit unit) {
    return unit == XlblSet::Unit::Hours ? 3600000.0 : 86400000.0;
}

} // namespace

frmXlblSet::frmXlblSet(TrendView& view, QWidget* parent) : QDialog(parent), view_(view) {
    setWindowTitle(TrendCaption(MsgId(603), "Time axis labels"));
    setFont(QFont(LanguageFont(), 9));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    txtLabel_ = numberEdit(this, "txtLabel");
    txtSubGrid_ = numberEdit(this, "txtSubGrid");
    form->addRow(TrendCaption(MsgId(613), "Label interval"), txtLabel_);
    form->addRow(TrendCaption(MsgId(614), "Sub-grid interval"), txtSubGrid_);
    layout->addLayout(form);

    optHours_ = new QRadioButton(TrendCaption(MsgId(611), "hour(s)").trimmed(), this);
    optHours_->setObjectName(QStringLiteral("optHours"));
    optDays_ = new QRadioButton(TrendCaption(MsgId(612), "day(s)").trimmed(), this);
    optDays_->setObjectName(QStringLiteral("optDays"));
    optHours_->setChecked(true);
    auto* units = new QHBoxLayout;
    units->addWidget(optHours_);
    units->addWidget(optDays_);
    units->addStretch(1);
    layout->addLayout(units);
    connect(optDays_, &QRadioButton::toggled, this, &frmXlblSet::unitChanged);

    const TrendViewState& st = view_.state();
    txtLabel_->setText(unitText(st.TimeLabelInterval[0]));
    txtSubGrid_->setText(unitText(st.TimeLabelInterval[1]));
    layout->addWidget(okCancelButtons(this, [this] { btnOK_Click(); }));
}

// A point count as a number of the unit on show; empty for none.
QString frmXlblSet::unitText(qint32 points) const {
    const qint32 interval = view_.tables().SampleInterval;
    if (points <= 0 || interval <= 0) return QString();
    return NumberText::doubleText(double(points) * interval / unitMs(shownUnit_));
}

void frmXlblSet::unitChanged() {
    // The numbers keep their meaning: 24 hours become 1 day.
    const XlblSet::Unit unit = optDays_->isChecked() ? XlblSet::Unit::Days : XlblSet::Unit::Hours;
    const qint32 interval = view_.tables().SampleInterval;
    const qint32 label = XlblSet::points(txtLabel_->text(), shownUnit_, interval);
    const qint32 sub = XlblSet::points(txtSubGrid_->text(), shownUnit_, interval);
    shownUnit_ = unit;
    if (label > 0) txtLabel_->setText(unitText(label));
    if (sub > 0) txtSubGrid_->setText(unitText(sub));
}

void frmXlblSet::btnOK_Click() {
    XlblSet::apply(view_, txtLabel_->text(), txtSubGrid_->text(), shownUnit_);
    accept();
}

#include "print/widgets/SPRDprint.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QHBoxLayout* radios(QWidget* parent, QButtonGroup* group, const QStringList& captions, int on) {
    auto* row = new QHBoxLayout;
    for (int k = 0; k < captions.size(); ++k) {
        auto* b = new QRadioButton(captions[k], parent);
        group->addButton(b, k);
        b->setChecked(k == on);
        row->addWidget(b);
    }
    return row;
}

} // namespace

bool IsPrinterInstalled(const QStringList* outputs) {
    if (outputs && outputs->isEmpty()) {
        ShowMsg(kMsgWarning, MsgText(564));
        return false;
    }
    return true;
}

SPRDprint::SPRDprint(int pageCount, QWidget* parent, const QStringList* printers)
    : QDialog(parent), setting_(PrintSetting::shared()) {
    setObjectName(QStringLiteral("SPRDprint"));
    auto* tabs = new QTabWidget(this);
    auto* printerTab = new QWidget(tabs);
    auto* form = new QFormLayout(printerTab);
    printer_ = new QComboBox(printerTab);
    printer_->setObjectName(QStringLiteral("cboPrinter"));
    printer_->addItem(QStringLiteral("PDF"), QString());
    for (const QString& name : printers ? *printers : QPrinterInfo::availablePrinterNames())
        printer_->addItem(name, name);
    printer_->setCurrentIndex(std::max(0, printer_->findData(setting_.Printer)));
    form->addRow(printer_);
    size_ = new QComboBox(printerTab);
    size_->setObjectName(QStringLiteral("cboSize"));
    for (int m = 249; m <= 256; ++m) size_->addItem(MsgText(m));
    size_->setCurrentIndex(setting_.Paper);
    form->addRow(MsgText(259), size_);
    orientation_ = new QButtonGroup(this);
    form->addRow(
        radios(printerTab, orientation_, {MsgText(257), MsgText(258)}, setting_.Orientation));
    range_ = new QButtonGroup(this);
    form->addRow(MsgText(216), radios(printerTab, range_,
                                      {MsgText(213), MsgText(214), MsgText(215)}, setting_.Range));
    from_ = new QSpinBox(printerTab);
    to_ = new QSpinBox(printerTab);
    for (QSpinBox* s : {from_, to_}) s->setRange(1, std::max(1, pageCount));
    from_->setValue(setting_.FromPage);
    to_->setValue(setting_.ToPage);
    auto* pages = new QHBoxLayout;
    pages->addWidget(from_);
    pages->addWidget(to_);
    form->addRow(pages);
    const double twips[] = {setting_.MarginTop, setting_.MarginLeft, setting_.MarginBottom,
                            setting_.MarginRight};
    for (int k = 0; k < 4; ++k) {
        margins_[k] = new QDoubleSpinBox(printerTab);
        margins_[k]->setRange(0, 200);
        margins_[k]->setSuffix(QStringLiteral(" mm"));
        margins_[k]->setValue(twips[k] / PrintSetting::kTwipsPerMm);
        form->addRow(margins_[k]);
    }
    tabs->addTab(printerTab, MsgText(259));
    auto* textTab = new QWidget(tabs);
    auto* texts = new QFormLayout(textTab);
    for (int k = 0; k < 3; ++k) {
        header_[k] = new QLineEdit(setting_.HeaderText[k], textTab);
        footer_[k] = new QLineEdit(setting_.FooterText[k], textTab);
        texts->addRow(header_[k]);
    }
    const auto fontButton = [this, textTab](bool header) {
        auto* button = new QPushButton(QStringLiteral("A"), textTab);
        button->setObjectName(header ? QStringLiteral("cmdFont_0") : QStringLiteral("cmdFont_1"));
        connect(button, &QPushButton::clicked, this, [this, header] {
            QString& name = header ? setting_.HeaderFontName : setting_.FooterFontName;
            qint16& size = header ? setting_.HeaderFontSize : setting_.FooterFontSize;
            bool& bold = header ? setting_.HeaderBold : setting_.FooterBold;
            bool& italic = header ? setting_.HeaderItalic : setting_.FooterItalic;
            QFont initial(name, size);
            initial.setBold(bold);
            initial.setItalic(italic);
            bool ok = false;
            const QFont f = QFontDialog::getFont(&ok, initial, this);
            if (!ok) return;
            name = f.family();
            size = qint16(f.pointSize());
            bold = f.bold();
            italic = f.italic();
        });
        return button;
    };
    texts->addRow(fontButton(true));
    for (int k = 0; k < 3; ++k) texts->addRow(footer_[k]);
    texts->addRow(fontButton(false));
    tabs->addTab(textTab, QStringLiteral("Header / Footer"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        cmdOK();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] {
        PrintSetting::shared().Cancelled = -1;
        reject();
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(buttons);
}

void SPRDprint::cmdOK() {
    setting_.Printer = printer_->currentData().toString();
    setting_.Paper = qint16(size_->currentIndex());
    setting_.Orientation = qint16(std::max(0, orientation_->checkedId()));
    setting_.Range = qint16(std::max(0, range_->checkedId()));
    setting_.FromPage = qint16(from_->value());
    setting_.ToPage = qint16(to_->value());
    double* twips[] = {&setting_.MarginTop, &setting_.MarginLeft, &setting_.MarginBottom,
                       &setting_.MarginRight};
    for (int k = 0; k < 4; ++k) *twips[k] = margins_[k]->value() * PrintSetting::kTwipsPerMm;
    for (int k = 0; k < 3; ++k) {
        setting_.HeaderText[k] = header_[k]->text();
        setting_.FooterText[k] = footer_[k]->text();
    }
    setting_.Cancelled = 0;
    PrintSetting::shared() = setting_;
}

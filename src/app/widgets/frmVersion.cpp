#include "app/widgets/frmVersion.h"

#include "app/widgets/AppIcon.h"
#include "app/widgets/ToolIcons.h"
#include "base/GSMode.h"
#include "base/LanguageTable.h"
#include "base/clsCommon.h"
#include "base/widgets/ApplyLanguageFont.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The name start-up gives the help; the manual that opens is the HTML one of HelpPages.
QString& helpFile() {
    static QString path;
    return path;
}

} // namespace

frmVersion::frmVersion(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmVersion"));
    ApplyLanguageFont(this);
    setWindowTitle(MsgText(455));
    auto* icon = new QLabel(this);
    const QIcon program = recviewIcon();
    icon->setPixmap((program.isNull() ? ToolIcons::mainButton(1) : program).pixmap(64, 64));
    auto* text = new QLabel(this);
    text->setObjectName(QStringLiteral("lblVersion"));
    text->setText(QStringLiteral("<b style='font-size:14pt'>recview%1</b><br>%2 %3<br><br>Qt %4")
                      .arg(GSMode().GSTitleSuffix.toHtmlEscaped(), MsgText(455).toHtmlEscaped(),
                           QStringLiteral(RECVIEW_VERSION), QString::fromLatin1(qVersion())));
    auto* ok = new QPushButton(MsgText(46), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(16);
    top->addWidget(text, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(ok, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void setHelpFile(const QString& path) {
    helpFile() = path;
}

bool ShowHelp(const QString& window) {
    return clsCommon::shared().ShowHelp(window);
}

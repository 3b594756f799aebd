#include "platform/SecurityAlertWindow.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace varnhold {

using namespace Qt::StringLiterals;

bool SecurityAlertWindow::accept(const QString& host, const QStringList& problems)
{
    cancel();
    QDialog dialog(QApplication::activeWindow());
    m_dialog = &dialog;
    dialog.setObjectName(u"SecurityAlert"_s);
    dialog.setWindowTitle(u"Security Alert"_s);

    auto* icon = new QLabel(&dialog);
    const int side = dialog.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &dialog);
    icon->setPixmap(dialog.style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));

    // Problems name what a stranger's certificate says of itself: never markup.
    auto* text = new QLabel(u"The identity of "_s + host + u" cannot be confirmed:\n\n\u2022 "_s +
                                problems.join(u"\n\u2022 "_s) + u"\n\nDo you want to proceed?"_s,
                            &dialog);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(320);

    auto* buttons = new QDialogButtonBox(&dialog);
    auto* yes = buttons->addButton(u"&Yes"_s, QDialogButtonBox::AcceptRole);
    auto* no = buttons->addButton(u"&No"_s, QDialogButtonBox::RejectRole);
    yes->setObjectName(u"Yes"_s);
    no->setObjectName(u"No"_s);
    // Enter must not let a stranger in.
    yes->setAutoDefault(false);
    no->setDefault(true);
    no->setFocus();
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(text, 1);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    layout->addLayout(row);
    layout->addWidget(buttons);
    return dialog.exec() == QDialog::Accepted;
}

void SecurityAlertWindow::cancel()
{
    if (m_dialog != nullptr)
        m_dialog->reject();
}

bool SecurityAlertWindow::pressYes()
{
    auto* yes = m_dialog == nullptr ? nullptr : m_dialog->findChild<QPushButton*>(u"Yes"_s);
    if (yes == nullptr)
        return false;
    QMetaObject::invokeMethod(yes, &QPushButton::click, Qt::QueuedConnection);
    return true;
}

} // namespace varnhold

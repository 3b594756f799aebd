#include "platform/QtMessageBoxes.h"

#include "platform/FrontWindow.h"

#include <QApplication>
#include <QMessageBox>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QString withLineFeeds(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

} // namespace

BoxAnswer QtMessageBoxes::show(const MessageBox& box)
{
    const bool question = box.buttons == BoxButtons::YesNo;
    QMessageBox dialog(iconOf(box.icon),
                       box.title.isEmpty() ? QApplication::applicationDisplayName() : box.title,
                       withLineFeeds(box.text),
                       question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, frontWindow());
    dialog.setTextFormat(Qt::PlainText);
    dialog.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    dialog.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
    // The main window is top-most while it loads; a box below it could not be answered.
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    switch (dialog.exec()) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    default:
        return BoxAnswer::Ok;
    }
}

} // namespace varnhold

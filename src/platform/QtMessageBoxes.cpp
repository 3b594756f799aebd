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

struct Choices
{
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton enter;
    QMessageBox::StandardButton escape;
};

Choices choicesOf(BoxButtons buttons)
{
    switch (buttons) {
    case BoxButtons::YesNo:
        return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case BoxButtons::YesNoCancel:
        return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
                QMessageBox::Cancel};
    case BoxButtons::Ok:
        break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

QString withLineFeeds(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

} // namespace

BoxAnswer QtMessageBoxes::show(const MessageBox& box)
{
    const Choices choices = choicesOf(box.buttons);
    QMessageBox dialog(iconOf(box.icon),
                       box.title.isEmpty() ? QApplication::applicationDisplayName() : box.title,
                       withLineFeeds(box.text), choices.buttons, frontWindow());
    dialog.setTextFormat(Qt::PlainText);
    dialog.setDefaultButton(choices.enter);
    dialog.setEscapeButton(choices.escape);
    // The main window is top-most while it loads; a box below it could not be answered.
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    switch (dialog.exec()) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Cancel:
        return BoxAnswer::Cancel;
    default:
        return BoxAnswer::Ok;
    }
}

} // namespace varnhold

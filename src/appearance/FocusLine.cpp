#include "appearance/FocusLine.h"

#include "controls/MorphListBox/MorphListBox.h"
#include "platform/PictureBox.h"

#include <QAbstractScrollArea>
#include <QApplication>

namespace varnhold {

namespace {

bool showsNoFocus(QWidget* control)
{
    // A frame of the toolkit's is lit by ToolkitStyle.
    if (const auto* area = qobject_cast<QAbstractScrollArea*>(control))
        return area->frameShape() == QFrame::NoFrame;
    return qobject_cast<MorphListBox*>(control) != nullptr || qobject_cast<PictureBox*>(control) != nullptr;
}

} // namespace

FocusLine::FocusLine(QApplication& application) : QObject(&application)
{
    connect(&application, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusLine::follow(QWidget* focused)
{
    QWidget* const framed = focused != nullptr && showsNoFocus(focused) ? focused : nullptr;
    if (m_frame == nullptr && framed != nullptr)
        m_frame = new QFocusFrame(framed->parentWidget());
    if (m_frame != nullptr)
        m_frame->setWidget(framed);
}

} // namespace varnhold

#pragma once

#include <QElapsedTimer>

namespace varnhold {

class XP_ProgressBar;

/// A bar over a walk through many rows that runs no events: it is painted from here, seldom enough to cost
/// nothing.
class ListProgress
{
public:
    explicit ListProgress(XP_ProgressBar& bar) : m_bar(bar) {}

    void show(int value);
    void setMaximum(int maximum);
    /// `value` out of the maximum.
    void setValue(int value);
    void hide();

private:
    XP_ProgressBar& m_bar;
    QElapsedTimer m_painted;
    int m_percent = 0;
    int m_next = 0; ///< below it nothing that shows can have changed
};

} // namespace varnhold

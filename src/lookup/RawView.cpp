#include "lookup/RawView.h"

namespace varnhold {

using namespace Qt::StringLiterals;

QString RawView::toggle(int picMainWidth)
{
    if (m_left == restLeft) {
        m_left = shownLeft;
        return u"Raw XML"_s;
    }
    m_left = restLeft;
    return QString::number(picMainWidth);
}

} // namespace varnhold

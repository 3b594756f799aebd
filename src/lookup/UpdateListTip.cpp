#include "lookup/UpdateListTip.h"

#include "lookup/UpdateList.h"

namespace varnhold {

using namespace Qt::StringLiterals;

QString updateListTip(const UpdateList& list, int row)
{
    // The blanks align the values in the balloon's font; the section signs stand for the capital S on
    // purpose.
    return u"Package Version:  "_s + list.text(row) + u"\r\n§ystem Version:    "_s +
           list.subItem(row, UpdateList::Version) + u"\r\n§ize:                      "_s +
           list.subItem(row, UpdateList::Size) + u"\r\nUrl:                        "_s +
           list.subItem(row, UpdateList::Url);
}

} // namespace varnhold

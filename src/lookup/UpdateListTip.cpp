#include "lookup/UpdateListTip.h"

#include "lookup/UpdateList.h"

#include <utility>

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

QString iconMeaning(const QString& key)
{
    const std::pair<QLatin1StringView, QString> meanings[] = {
        {"pkg"_L1, u"Not on disk"_s},
        {"pkg-plus"_L1, u"On disk"_s},
        {"pkg-red"_L1, u"On disk, but incomplete or of another size"_s},
        {"plus"_L1, u"Marked as downloaded"_s},
        {"pkg-dl"_L1, u"Download started"_s},
    };
    for (const auto& [name, meaning] : meanings) {
        if (key == name)
            return meaning;
    }
    return {};
}

} // namespace varnhold

#include "download/DownloadSlots.h"

#include "download/NumericValue.h"
#include "platform/RunTimeError.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

double offsetAt(const std::array<QString, 5>& list, qint16 index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= list.size())
        throw RunTimeError(errors::invalidPropertyArrayIndex);
    return numericValue(list.at(static_cast<std::size_t>(index)));
}

} // namespace

DownloadSlots::DownloadSlots() : lstLeft{u"320"_s, u"640"_s, u"960"_s, u"1280"_s, u"1600"_s}, lstTop(lstLeft)
{
    lstFrm.fill(u"99"_s);
}

void DownloadSlots::take(qint16& loopIndex)
{
    loopIndex = 0;
    for (QString& entry : lstFrm) {
        if (numericValue(entry) == 99) {
            entry = QString::number(loopIndex);
            return;
        }
        ++loopIndex;
    }
}

void DownloadSlots::free(qint16 slotIndex)
{
    for (QString& entry : lstFrm) {
        if (numericValue(entry) == slotIndex) {
            entry = u"99"_s;
            return;
        }
    }
}

double DownloadSlots::left(qint16 loopIndex) const
{
    return offsetAt(lstLeft, loopIndex);
}

double DownloadSlots::top(qint16 loopIndex) const
{
    return offsetAt(lstTop, loopIndex);
}

} // namespace varnhold

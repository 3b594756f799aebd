#include "state/ErrorReport.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

void showReport(MessageBoxes& boxes, const RunTimeError& error, DescriptionLabel label, const QString& end)
{
    const QString third =
        label == DescriptionLabel::WithBlank ? u"Err Description: "_s : u"Err Description:"_s;
    boxes.show({u"Err Number:\t"_s + QString::number(error.number()) + u"\r\nErr Source:\t"_s +
                    error.source() + u"\r\n"_s + third + u'\t' + error.description() + u"\r\n"_s + end,
                u"ErrorException"_s, BoxIcon::Critical, BoxButtons::Ok});
}

} // namespace

void reportError(MessageBoxes& boxes, const RunTimeError& error, DescriptionLabel label)
{
    showReport(boxes, error, label, {});
}

void reportError(MessageBoxes& boxes, const RunTimeError& error, DescriptionLabel label, const QString& file)
{
    showReport(boxes, error, label, u"Err File:\t"_s + file);
}

} // namespace varnhold

#include "cli/PackageCheck.h"

#include "platform/RunTimeError.h"

#include <QFile>

#include <cerrno>
#include <optional>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

PackageSums sumsOf(const QString& path)
{
    QFile file(path);
    PackageSum sum;
    if (file.open(QIODevice::ReadOnly))
        if (const std::optional<PackageSums> sums = sum.finish(file.handle(), file.size()))
            return *sums;
    throw RunTimeError(
        errors::pathFileAccess,
        u"%1 cannot be read: %2."_s.arg(path, file.isOpen() ? qt_error_string(errno) : file.errorString()));
}

} // namespace

SumAgreement compareSum(const QString& path, const QString& documentSum,
                        const std::optional<PackageSums>& known)
{
    const QByteArray wanted = documentSum.trimmed().toLower().toLatin1();
    if (wanted.isEmpty())
        return SumAgreement::NotGiven;
    const PackageSums sums = known ? *known : sumsOf(path);
    if (sums.whole == wanted)
        return SumAgreement::WholeFile;
    return sums.allButTail == wanted ? SumAgreement::AllButTail : SumAgreement::Neither;
}

QString agreementText(SumAgreement agreement)
{
    switch (agreement) {
    case SumAgreement::WholeFile:
        return u"SHA-1 agrees with the document over the whole file."_s;
    case SumAgreement::AllButTail:
        return u"SHA-1 agrees with the document over all but the last 32 bytes."_s;
    case SumAgreement::Neither:
        return u"SHA-1 does not agree with the document, neither over the whole file nor over all but the "
               u"last 32 "
               "bytes."_s;
    case SumAgreement::NotGiven:
        break;
    }
    return u"The document gives no SHA-1 to compare with."_s;
}

} // namespace varnhold::cli

#include "cli/PackageCheck.h"

#include "platform/RunTimeError.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 tailSize = 32;
constexpr qint64 blockSize = 1024 * 1024;

void addBytes(QCryptographicHash& hash, QFile& file, qint64 count)
{
    QByteArray block;
    for (; count > 0; count -= block.size()) {
        block = file.read(std::min(count, blockSize));
        if (block.isEmpty())
            throw RunTimeError(errors::pathFileAccess,
                               u"%1 cannot be read: %2."_s.arg(file.fileName(), file.errorString()));
        hash.addData(block);
    }
}

} // namespace

SumAgreement compareSum(const QString& path, const QString& documentSum)
{
    const QByteArray wanted = documentSum.trimmed().toLower().toLatin1();
    if (wanted.isEmpty())
        return SumAgreement::NotGiven;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(errors::pathFileAccess, u"%1 cannot be read: %2."_s.arg(path, file.errorString()));
    const qint64 size = file.size();
    QCryptographicHash hash(QCryptographicHash::Sha1);
    addBytes(hash, file, std::max<qint64>(size - tailSize, 0));
    // A result ends nothing: the sum of the whole file goes on from here, and the file is read once.
    const bool allButTail = size >= tailSize && hash.result().toHex() == wanted;
    addBytes(hash, file, std::min(size, tailSize));
    if (hash.result().toHex() == wanted)
        return SumAgreement::WholeFile;
    return allButTail ? SumAgreement::AllButTail : SumAgreement::Neither;
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

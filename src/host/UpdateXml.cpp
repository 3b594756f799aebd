#include "host/UpdateXml.h"

namespace varnhold::host {

using namespace Qt::StringLiterals;

QString packagePath(const SampleTitle& title, const SamplePackage& package)
{
    if (package.address == PackageAddress::None)
        return {};
    if (package.address == PackageAddress::AsFirst)
        return packagePath(title, title.packages.front());
    QString version = package.version;
    version.remove(u'.');
    const QString path =
        u"/tppkg/np/%1/%1_T1/UP0001-%1_00-VARNHOLDSAMPLE00-A%2-V0100"_s.arg(title.id, version);
    return path + (package.address == PackageAddress::Capitals ? u".PKG"_s : u".pkg"_s);
}

QByteArray updateXml(const SampleTitle& title, const std::vector<PackageSums>& sums, const QByteArray& origin)
{
    const QByteArray id = title.id.toUtf8();
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<titlepatch status=\"alive\" titleid=\"" +
                     id + "\">\n<tag name=\"" + id + "_T1\" popup=\"true\" signoff=\"true\">\n";
    for (std::size_t i = 0; i < title.packages.size(); ++i) {
        const SamplePackage& package = title.packages[i];
        const QByteArray& sum =
            title.sumOf == SumOf::WholeFile ? sums.at(i).wholeFile : sums.at(i).allButTail;
        xml += "<package version=\"" + package.version.toUtf8() + "\" size=\"" +
               QByteArray::number(package.size) + "\" sha1sum=\"" + sum + '"';
        if (package.address != PackageAddress::None)
            xml += " url=\"" + origin + (title.moved ? "/moved" : "") + packagePath(title, package).toUtf8() +
                   '"';
        if (!package.systemVersion.isEmpty())
            xml += " ps3_system_ver=\"" + package.systemVersion.toUtf8() + '"';
        if (i + 1 == title.packages.size())
            xml += ">\n<paramsfo>\n<TITLE>" + title.name.toHtmlEscaped().toUtf8() +
                   "</TITLE>\n</paramsfo>\n</package>\n";
        else
            xml += "/>\n";
    }
    return xml + "</tag>\n</titlepatch>\n";
}

} // namespace varnhold::host

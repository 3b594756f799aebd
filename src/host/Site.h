#pragma once

#include "host/PackageContent.h"
#include "host/Reply.h"
#include "host/Titles.h"

#include <QFuture>
#include <QHash>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace varnhold::host {

/// What the sample service has to show: which path is answered with what.
class Site : public QObject
{
    Q_OBJECT

public:
    explicit Site(QObject* parent = nullptr);

    /// Adds a title, or replaces the one of the same id.
    void addTitle(const SampleTitle& title);
    /// Answers this path with these bytes, whatever else would stand there.
    void addPage(const QString& path, const QByteArray& contentType, const QByteArray& bytes);
    [[nodiscard]] const std::vector<SampleTitle>& titles() const { return m_titles; }
    /// The version file, as it is.
    void setVersionText(const QByteArray& text) { m_versionText = text; }
    /// Where the pictures of covers lie, in `covers` and `scans`; a cover that is not there is made up.
    void setCoverFolder(const QString& folder) { m_coverFolder = folder; }
    /// The list of ids, as it is, in the place of the one of all titles.
    void setIdList(const QByteArray& list) { m_idList = list; }

    /// Finds the answer for a path and a query (without its "?") and hands it over: at once, or from the
    /// event loop when sums have to be made first; never after `asker` is gone. `origin` begins package
    /// addresses.
    void answer(const QString& path, const QByteArray& query, const QByteArray& origin, const QObject* asker,
                const std::function<void(const Reply&)>& done);

private:
    struct Found
    {
        std::size_t title = 0;   ///< index
        std::size_t package = 0; ///< index, or a mark for the document
    };
    void addPaths(std::size_t title);
    [[nodiscard]] Reply page(const QString& path, const QByteArray& query, const QByteArray& origin) const;
    [[nodiscard]] QByteArray imagesPage(const QByteArray& query) const;
    [[nodiscard]] QByteArray idList() const;
    [[nodiscard]] QByteArray cover(const QString& id, bool scan) const;

    std::vector<SampleTitle> m_titles;
    QHash<QString, Found> m_paths;
    QHash<QString, Reply> m_pages;
    QHash<QString, QFuture<std::vector<PackageSums>>> m_sums; ///< by id, as far as they were asked for
    QByteArray m_versionText;
    std::optional<QByteArray> m_idList;
    QString m_coverFolder;
};

} // namespace varnhold::host

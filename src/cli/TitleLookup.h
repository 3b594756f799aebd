#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace varnhold::cli {

class Session;

struct Package
{
    QString version;
    QString systemVersion; ///< "N/A" when the document does not say
    QString sizeText;      ///< "1.72 MB (1805056 bytes)"
    QString sha1;
    QString url;
    QString mark = {}; ///< the row's icon in the window: "pkg", "plus", "pkg-red" or "pkg-plus"

    /// The document's size in bytes; no value when it gives none.
    [[nodiscard]] std::optional<qint64> size() const;
};

struct TitleUpdates
{
    enum class Outcome { Found, NoSuchTitle, Failed };

    Outcome outcome = Outcome::Failed;
    QString problem; ///< a sentence, unless it was found; empty when it has been told already
    QString title;   ///< cleaned as the settings say
    QList<Package> packages;
};

/// Asks the settings' server for the title's document and cuts it into packages. Waits until it is here.
TitleUpdates lookUp(Session& session, const QString& gameId);

} // namespace varnhold::cli

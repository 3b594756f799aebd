#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace varnhold {

/// A hidden browser that fetches one page at a time. Events come from the event loop, later than
/// navigate() returns.
class BrowserControl : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Leaves the page that loads, ends its open question, and starts this one. An address that makes no
    /// sense ends in navigateError(-2146697214).
    virtual void navigate(const QString& url) = 0;
    /// True from navigate() until the page is shown or has failed.
    [[nodiscard]] virtual bool busy() const = 0;
    /// Text of the page as the user would see it: the tree text of a well-formed document, CR LF line ends.
    /// No value while there is no page body.
    [[nodiscard]] virtual std::optional<QString> bodyText() const = 0;

Q_SIGNALS:
    /// The last one of a page that was shown is exactly "Done"; none comes after a navigation error.
    void statusTextChanged(const QString& text);
    /// progress -1: the page is complete.
    void progressChanged(int progress, int maximum);
    /// One of the codes of the table of navigation errors, an HTTP status, or another code.
    void navigateError(int code);
};

} // namespace varnhold

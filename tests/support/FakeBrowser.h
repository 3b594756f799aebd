#pragma once

#include "platform/BrowserControl.h"

#include <QStringList>

namespace varnhold::test {

/// Goes where it is told and shows what the test gives it; every event is the test's own call.
class FakeBrowser : public BrowserControl
{
public:
    void navigate(const QString& url) override
    {
        urls.append(url);
        loading = true;
    }
    [[nodiscard]] bool busy() const override { return loading; }
    [[nodiscard]] std::optional<QString> bodyText() const override { return body; }

    /// The page is there: the last progress and status text.
    void show(const std::optional<QString>& text)
    {
        body = text;
        loading = false;
        Q_EMIT progressChanged(-1, 0);
        Q_EMIT statusTextChanged(QStringLiteral("Done"));
    }
    void refuse(int code)
    {
        body.reset();
        loading = false;
        Q_EMIT navigateError(code);
    }

    QStringList urls;
    bool loading = false;
    std::optional<QString> body;
};

} // namespace varnhold::test

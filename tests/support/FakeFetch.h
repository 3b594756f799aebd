#pragma once

#include "platform/FileFetch.h"

#include <QMap>
#include <QStringList>

namespace varnhold::test {

/// Answers by url from what the test has laid down; anything else is a 404. Keeps what was asked.
class FakeFetch : public FileFetch
{
public:
    struct Answer
    {
        QByteArray body;
        FetchResult result{.status = 200};
    };

    FetchResult fetch(const QString& url, const FetchLimits& limits,
                      const std::function<bool(QByteArrayView)>& sink) override
    {
        asked.append(url);
        const Answer answer = answers.value(url, {{}, {.status = 404}});
        if (underWay)
            underWay();
        if (cancelled || answer.body.size() > limits.bytes)
            return {.error = cancelled ? -2146697205 : -2146697208};
        if (answer.result.status == 200)
            for (const char& byte : answer.body) // the hardest way to cut a body
                if (!sink(QByteArrayView(&byte, 1)))
                    return {.error = -2146697208, .status = 200};
        return answer.result;
    }
    FetchResult head(const QString& url, const FetchLimits&) override
    {
        asked.append(url);
        return answers.value(url, {{}, {.status = 404}}).result;
    }
    void cancel() override { cancelled = true; }

    QMap<QString, Answer> answers;
    std::function<void()> underWay; ///< runs as if the fetch pumped
    QStringList asked;
    bool cancelled = false;
};

} // namespace varnhold::test

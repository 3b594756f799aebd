#include "host/HttpRequest.h"

namespace varnhold::host {

HttpRequest readRequest(QByteArrayView received)
{
    HttpRequest request;
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0 || end > requestLimit) {
        if (received.size() > requestLimit)
            request.state = HttpRequest::State::Malformed;
        return request;
    }
    request.state = HttpRequest::State::Malformed;
    const QByteArrayView line = received.first(received.indexOf("\r\n"));
    const qsizetype firstBlank = line.indexOf(' ');
    const qsizetype lastBlank = line.lastIndexOf(' ');
    if (firstBlank < 1 || lastBlank == firstBlank || !line.sliced(lastBlank + 1).startsWith("HTTP/1."))
        return request;
    request.method = line.first(firstBlank).toByteArray();
    request.target = line.sliced(firstBlank + 1, lastBlank - firstBlank - 1).toByteArray();
    if (!request.target.startsWith('/') || request.target.contains(' ') || request.target.contains('\0'))
        return request;
    request.state = HttpRequest::State::Complete;
    return request;
}

} // namespace varnhold::host

#include "host/Reply.h"

namespace varnhold::host {

QByteArray reasonPhrase(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 206:
        return "Partial Content";
    case 301:
        return "Moved Permanently";
    case 302:
        return "Found";
    case 400:
        return "Bad Request";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    default:
        return "Odd";
    }
}

Reply bytesReply(const QByteArray& contentType, const QByteArray& bytes)
{
    Reply reply;
    reply.contentType = contentType;
    reply.body = Body::fromBytes(bytes);
    return reply;
}

Reply statusReply(int status)
{
    const QByteArray line = QByteArray::number(status) + ' ' + reasonPhrase(status);
    Reply reply;
    reply.status = status;
    reply.contentType = "text/html; charset=utf-8";
    reply.body = Body::fromBytes("<html><head><title>" + line + "</title></head><body><h1>" + line +
                                 "</h1></body></html>\n");
    return reply;
}

} // namespace varnhold::host

#include "host/SendPlan.h"

#include "host/Cover.h"

#include <algorithm>

namespace varnhold::host {

namespace {

constexpr qint64 piecedBodyBytes = 64;
constexpr qint64 mebibyte = 1024 * 1024;

Reply redirectTo(const QByteArray& location)
{
    Reply reply = statusReply(302);
    reply.location = location;
    return reply;
}

QByteArray nextHop(const QByteArray& target)
{
    const QByteArray mark = "?hop=";
    const qsizetype at = target.indexOf(mark);
    const qlonglong hop = at < 0 ? 0 : target.sliced(at + mark.size()).toLongLong();
    return (at < 0 ? target : target.first(at)) + mark + QByteArray::number(hop + 1);
}

Body packagesBody(qint64 count, const PlanContext& context)
{
    // The id stands between the last "/" of the path and "-ver.xml".
    const qsizetype slash = context.path.lastIndexOf('/');
    const QByteArray id = context.path.sliced(slash + 1).left(9);
    const QByteArray head =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><titlepatch status=\"alive\" titleid=\"" + id +
        "\"><tag name=\"" + id + "_T1\" popup=\"true\" signoff=\"true\">";
    const QByteArray row = "<package version=\"##########\" size=\"1048576\" "
                           "sha1sum=\"0123456789abcdef0123456789abcdef01234567\" url=\"" +
                           context.origin + "/package/" + id +
                           "-##########.pkg\" ps3_system_ver=\"03.4100\"/>";
    const QByteArray tail =
        "<package version=\"99.99\" size=\"1048576\" sha1sum=\"0123456789abcdef0123456789abcdef01234567\" "
        "url=\"" +
        context.origin + "/package/" + id +
        "-last.pkg\" ps3_system_ver=\"03.4100\"><paramsfo><TITLE>Many Packages</TITLE></paramsfo></package>"
        "</tag></titlepatch>";
    return Body::fromRows(head, row, std::max<qint64>(count - 1, 0), tail);
}

Body hugeBody(qint64 mebibytes)
{
    const QByteArray row = "<!-- " + QByteArray(1013, '.') + " -->\r\n";
    return Body::fromRows("<?xml version=\"1.0\" encoding=\"UTF-8\"?><titlepatch>", row,
                          mebibytes * mebibyte / row.size() + 1, "</titlepatch>");
}

/// The body with a part that reads like the start of another answer.
Body withHttpChunk(const Body& body, qint64 at)
{
    static const QByteArray odd = "HTTP/1.1 500 Odd\r\nContent-Length: 0\r\n\r\n";
    return {body.size, [body, at](qint64 offset, std::span<char> out) {
                body.read(offset, out);
                for (qint64 i = std::max(at, offset); i < std::min(at + odd.size(), offset + std::ssize(out));
                     ++i)
                    out[static_cast<std::size_t>(i - offset)] = odd.at(i - at);
            }};
}

/// The kinds that answer with something else altogether.
Reply replaced(Reply reply, const Misbehaviour& odd, const PlanContext& context)
{
    switch (odd.kind) {
    case Odd::Status:
        return statusReply(static_cast<int>(odd.amount.value_or(500)));
    case Odd::EndlessRedirect:
        return redirectTo(context.origin + nextHop(context.target));
    case Odd::RedirectSelf:
        return redirectTo(context.origin + context.target);
    case Odd::RedirectEmpty: {
        // An empty `location` sends no header at all; one blank sends an empty value.
        return redirectTo(" ");
    }
    case Odd::RedirectPort:
        return context.otherOrigin.isEmpty() ? reply : redirectTo(context.otherOrigin + context.path);
    case Odd::NotXml:
        return bytesReply("text/html; charset=utf-8", "<html><body><p>This is & no document<br></body>");
    case Odd::ManyPackages:
        reply = Reply{};
        reply.contentType = "text/xml";
        reply.body = packagesBody(odd.amount.value_or(20000), context);
        return reply;
    case Odd::HugeDocument:
        reply = Reply{};
        reply.contentType = "text/xml";
        reply.body = hugeBody(odd.amount.value_or(65));
        return reply;
    case Odd::NotPicture:
        return bytesReply("image/jpeg", "<html><body><p>This is no picture.</p></body></html>\n");
    case Odd::MovedToPage:
        return redirectTo(context.origin + "/");
    case Odd::EndlessBody:
        reply.body = Body::fromEndless(QByteArray(4096, '.'));
        return reply;
    case Odd::ManyScans:
        return bytesReply("image/jpeg", manyScansJpeg(static_cast<int>(odd.amount.value_or(4000))));
    case Odd::ToldSize:
        return bytesReply("image/jpeg", hugeSizeJpeg());
    case Odd::EndlessHeaders:
        reply.body = Body::fromEndless("X-More: and more\r\n");
        return reply;
    default:
        return reply;
    }
}

QByteArray headOf(const Reply& reply, const Misbehaviour& odd)
{
    QByteArray head =
        "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reasonPhrase(reply.status) + "\r\n";
    head += "Server: varnhold-host\r\n";
    if (odd.kind == Odd::EndlessHeaders)
        return head;
    if (!reply.location.isEmpty())
        head += "Location: " + (reply.location == " " ? QByteArray() : reply.location) + "\r\n";
    head += "Content-Type: " + reply.contentType + "\r\n";
    const bool toldLength =
        odd.kind != Odd::NoLength && odd.kind != Odd::EndlessBody && odd.kind != Odd::HalfPicture;
    if (toldLength) {
        const qint64 lie = odd.kind == Odd::WrongLength ? odd.amount.value_or(1000) : 0;
        head += "Content-Length: " + QByteArray::number(reply.body.size + lie) + "\r\n";
    }
    return head + "Connection: close\r\n\r\n";
}

} // namespace

qint64 SendPlan::read(qint64 offset, std::span<char> out) const
{
    if (offset < head.size()) {
        const qint64 count = std::min<qint64>({head.size() - offset, std::ssize(out), end - offset});
        std::copy_n(head.constData() + offset, count, out.data());
        return count;
    }
    const qint64 count = std::min<qint64>(std::ssize(out), end - offset);
    body.read(offset - head.size(), out.first(static_cast<std::size_t>(count)));
    return count;
}

SendPlan makePlan(Reply reply, const Misbehaviour& misbehaviour, const PlanContext& context)
{
    reply = replaced(std::move(reply), misbehaviour, context);
    SendPlan plan;
    plan.head = headOf(reply, misbehaviour);
    plan.body = reply.body;
    plan.bytesPerSecond = reply.paced ? context.bytesPerSecond : 0;

    const qint64 headSize = plan.head.size();
    const qint64 bodySize = context.headOnly && plan.body.size != Body::endless ? 0 : plan.body.size;
    const auto inBody = [&](qint64 otherwise) {
        return headSize + std::clamp<qint64>(misbehaviour.amount.value_or(otherwise), 0, bodySize);
    };
    plan.end = bodySize == Body::endless ? Body::endless : headSize + bodySize;

    switch (misbehaviour.kind) {
    case Odd::EarlyClose:
    case Odd::HalfPicture:
        plan.end = inBody(bodySize / 2);
        break;
    case Odd::Reset:
        plan.end = inBody(bodySize / 2);
        plan.how = SendPlan::End::Reset;
        break;
    case Odd::Stall:
        plan.end = misbehaviour.amount ? inBody(0) : 0;
        plan.how = SendPlan::End::Stall;
        break;
    case Odd::SplitHeader:
        plan.cuts = {std::clamp<qint64>(misbehaviour.amount.value_or(headSize / 2), 0, plan.end)};
        break;
    case Odd::Pieces:
        for (qint64 at = misbehaviour.amount.value_or(1); at < std::min(headSize + piecedBodyBytes, plan.end);
             at += misbehaviour.amount.value_or(1))
            plan.cuts.push_back(at);
        break;
    case Odd::SlowDrip:
        plan.bytesPerSecond = misbehaviour.amount.value_or(2048);
        break;
    case Odd::HttpChunk: {
        const qint64 at = inBody(bodySize / 2);
        plan.body = withHttpChunk(plan.body, at - headSize);
        plan.cuts = {at};
        break;
    }
    default:
        break;
    }
    return plan;
}

} // namespace varnhold::host

#include "lookup/NavigationErrors.h"

#include <algorithm>
#include <array>

namespace varnhold {

namespace {

struct NavigationError
{
    int code;
    const char16_t* text;
};

// The spelling of these texts, capitals included, is what users know.
constexpr std::array<NavigationError, 24> table = {{
    {-2146697214, u"URL string is not valid"},
    {-2146697213, u"No session found"},
    {-2146697212, u"Unable to connect to server"},
    {-2146697211, u"Requested resource Is Not found"},
    {-2146697210, u"Requested object Is Not found"},
    {-2146697209, u"Requested Data Is Not available"},
    {-2146697208, u"Failure occurred during download"},
    {-2146697207, u"Requested navigation requires authentication"},
    {-2146697206, u"Required Not media Or valid"},
    {-2146697205, u"Connection timed out"},
    {-2146697204, u"Request is invalid"},
    {-2146697203, u"Protocol is not recognized"},
    {-2146697202, u"Navigation request has encountered a security issue"},
    {-2146697201, u"Unable to load data from the server"},
    {-2146697200, u"Unable to create an instance of the object"},
    {-2146697196, u"Attempt to redirect the navigation failed"},
    {-2146697195, u"Navigation redirected to a directory"},
    {-2146697194, u"Unable to lock request with the server"},
    {-2146697193, u"Reissue request with extended binding"},
    {-2146697192, u"Binding is terminated"},
    {-2146697960, u"Permission to download is declined"},
    {-2146696704, u"Result is dispatched"},
    {-2146696448, u"Cannot replace a protected System File Protection (SFP) file"},
    {404, u"404 - Requested Data Is Not available"},
}};

} // namespace

std::optional<QString> navigationErrorText(int code)
{
    const auto* found = std::find_if(table.begin(), table.end(),
                                     [code](const NavigationError& row) { return row.code == code; });
    if (found == table.end())
        return std::nullopt;
    return QStringView(found->text).toString();
}

} // namespace varnhold

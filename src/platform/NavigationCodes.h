#pragma once

namespace varnhold::navigation {

/// Those codes of the table of navigation errors that this program finds out by itself.
constexpr int invalidUrl = -2146697214;
constexpr int cannotConnect = -2146697212;
constexpr int hostNotFound = -2146697211;
constexpr int noData = -2146697209;
constexpr int downloadFailed = -2146697208;
constexpr int timedOut = -2146697205;
constexpr int unknownProtocol = -2146697203;
constexpr int securityProblem = -2146697202;
constexpr int redirectFailed = -2146697196;
constexpr int notFound = 404;

} // namespace varnhold::navigation

#pragma once

namespace varnhold {

class LinkResults;
class ResultList;
class SearchView;
class SharedDatabase;
class Sounds;

/// Looks for entries in one of the three tables. Games come into the result list, links elsewhere; a search
/// for links leaves the result list empty.
class Search
{
public:
    struct Services
    {
        SharedDatabase& database;
        SearchView& view;
        ResultList& results;
        LinkResults& links;
        Sounds& sounds;
    };

    explicit Search(const Services& services) : m_services(services) {}

    /// A failure is reported and leaves panel, bar and connection as they are at that moment, which is meant.
    void cmdSearch_Click();

private:
    void run();

    Services m_services;
};

} // namespace varnhold

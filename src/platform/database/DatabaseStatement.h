#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace varnhold {

/// A statement of the program, taken apart. Names stand as they were written. Who makes one instead of having
/// a text read can put any value into it, an apostrophe too.
struct DatabaseStatement
{
    enum class Kind { Select, Delete };

    enum class Comparison { Equal, Like };

    struct Condition
    {
        QString column;
        QString value; ///< after Like a pattern, see TextPattern
        Comparison comparison = Comparison::Equal;
    };
    struct Order
    {
        QString column;
        bool descending = false;
    };

    Kind kind = Kind::Select;
    QString table;
    std::optional<Condition> condition;
    std::optional<Order> order;
};

/// Reads the program's own shapes and nothing else, key words in any case:
///   SELECT * FROM table [where column='value' | where column LIKE 'pattern'] [ORDER BY column [Asc|Desc]]
///   [;] DELETE * FROM table WHERE column='value' [;]
/// There is no way to write an apostrophe inside a value, so that whatever a value holds, the statement
/// either compares with just that value or is no statement. RunTimeError 0x80040E14 for anything else.
DatabaseStatement readStatement(QStringView text);

} // namespace varnhold

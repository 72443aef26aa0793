#pragma once

#include <QTest>

#include <tuple>
#include <utility>
#include <vector>

// A table of a test in short: `columns()` and `row()` where it is made, `fetched()` where a row is
// used.

inline std::vector<const char*>& columnsOfTable()
{
    static std::vector<const char*> names;
    return names;
}

/// Adds columns of these types, named so.
template <class... Values, class... Names>
void columns(Names... names)
{
    static_assert(sizeof...(Values) == sizeof...(Names), "Each column has a type and a name.");
    columnsOfTable() = {names...};
    (QTest::addColumn<Values>(names), ...);
}

/// Adds a row of these values.
template <class... Values>
void row(const char* name, Values... values)
{
    (QTest::newRow(name) << ... << values);
}

template <class Value>
const Value& fetchedColumn(const char* name)
{
    return *static_cast<const Value*>(QTest::qData(name, qMetaTypeId<Value>()));
}

/// The first values of the row, of these types.
template <class... Values, std::size_t... Columns>
std::tuple<Values...> fetchedColumns(std::index_sequence<Columns...>)
{
    return {fetchedColumn<Values>(columnsOfTable().at(Columns))...};
}

template <class... Values>
std::tuple<Values...> fetched()
{
    return fetchedColumns<Values...>(std::index_sequence_for<Values...>());
}

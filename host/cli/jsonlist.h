#pragma once

class QJsonObject;

namespace Cli {

class Output;

/// A list of JSON objects, one per line.
class JsonList
{
public:
    explicit JsonList(Output& output) : m_output(output) {}
    ~JsonList();

    void add(const QJsonObject& object);

private:
    Output& m_output;
    bool m_isEmpty = true;
};

}  // namespace Cli

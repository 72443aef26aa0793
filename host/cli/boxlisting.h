#pragma once

#include <QString>

namespace Family {
class AnimationNode;
}  // namespace Family

namespace Operations {
struct AnimationBoxReport;
struct BoxesInFrame;
}  // namespace Operations

namespace Cli {

class Output;

/// An animation and its location.
struct AnimationInFile
{
    const Family::AnimationNode& animation;
    QString file;
    QString path;  ///< of the node in the file
};

/// Prints the contact boxes of animations.
class BoxListing
{
public:
    virtual ~BoxListing() = default;
    virtual void add(const AnimationInFile& found,
                     const Operations::AnimationBoxReport& report) = 0;
};

/// Prints a line for each animation, frame and box.
class BoxLines final : public BoxListing
{
public:
    explicit BoxLines(Output& output) : m_output(output) {}
    void add(const AnimationInFile& found, const Operations::AnimationBoxReport& report) override;

private:
    void writeBoxes(const char* kind, const Operations::BoxesInFrame& list);
    void writeLine(int line, const QString& what, const QStringList& facts);

    Output& m_output;
    QString m_file;
};

/// Prints a JSON object for each animation, with one line per frame.
class BoxObjects final : public BoxListing
{
public:
    explicit BoxObjects(Output& output) : m_output(output) {}
    ~BoxObjects() override;
    void add(const AnimationInFile& found, const Operations::AnimationBoxReport& report) override;

private:
    Output& m_output;
    bool m_isEmpty = true;
};

}  // namespace Cli

#pragma once

#include <QByteArray>
#include <QStringList>

/// Runs a program of the system, such as ImageMagick's "convert", with `input`, and gives what it
/// prints. If it is missing or fails, so does the test, and the result is empty.
QByteArray runTool(const QString& program, const QStringList& arguments,
                   const QByteArray& input = {});

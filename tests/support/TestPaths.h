#pragma once

#include <QString>

/// Where tests find their inputs.
namespace TestPaths {
/// Small fixtures kept beside the tests.
inline QString data(const QString &name)
{
    return QStringLiteral(TOLVANE_TEST_DATA "/") + name;
}
/// The sample course the build made.
inline QString course()
{
    return QStringLiteral(TOLVANE_COURSE_DIR);
}
/// The acoustic model folder the build made, with its pronunciation list.
inline QString acousticModel() { return QStringLiteral(TOLVANE_ACOUSTIC_DIR); }
inline QString buildDir()
{
    return QStringLiteral(TOLVANE_BUILD_DIR);
}
inline QString cli()
{
    return QStringLiteral(TOLVANE_CLI);
}
} // namespace TestPaths

#pragma once

#include <QString>
#include <QtGlobal>
#include <algorithm>

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
inline QString acousticModel()
{
    return QStringLiteral(TOLVANE_ACOUSTIC_DIR);
}
inline QString buildDir()
{
    return QStringLiteral(TOLVANE_BUILD_DIR);
}
inline QString cli()
{
    return QStringLiteral(TOLVANE_CLI);
}
} // namespace TestPaths

/// How many times slower than a plain build this one runs ("TOLVANE_TEST_SLOWDOWN", 1 when
/// unset): limits on time are multiplied by it, so a sanitiser's pace is not taken for a fault.
inline int testSlowdown()
{
    return std::max(1, qEnvironmentVariableIntValue("TOLVANE_TEST_SLOWDOWN"));
}

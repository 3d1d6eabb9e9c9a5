#include "audio/MicrophonePermission.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

TEST(MicrophonePermission, MissingDeviceCountsAsDenied)
{
    bool present = false;
    int opened = 0;
    MicrophonePermission permission([&] { return present; }, [&] { ++opened; });
    QSignalSpy changed(&permission, &MicrophonePermission::deniedChanged);

    EXPECT_TRUE(permission.check());
    EXPECT_TRUE(permission.isDenied());
    EXPECT_EQ(permission.message(), QStringLiteral("Microphone Access Denied"));
    EXPECT_EQ(permission.cancelTitle(), QStringLiteral("Cancel"));
    EXPECT_EQ(permission.openSettingsTitle(), QStringLiteral("Open Settings"));
    EXPECT_TRUE(permission.canOpenSettings());
    permission.openSettings();
    EXPECT_EQ(opened, 1);

    present = true;
    EXPECT_FALSE(permission.check());
    EXPECT_FALSE(permission.isDenied());
    EXPECT_EQ(changed.count(), 2);
}

TEST(MicrophonePermission, WithoutSoundSettingsTheButtonIsAbsent)
{
    MicrophonePermission permission([] { return false; }, {});
    EXPECT_TRUE(permission.check());
    EXPECT_FALSE(permission.canOpenSettings());
    permission.openSettings();
}

} // namespace

#include "AppDelegate.h"

#include "Preferences.h"
#include "UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"

bool AppDelegate::didFinishLaunching()
{
    const UserInfoFile record;
    if (!record.exists())
        record.write(initialUserInfo());
    Preferences::instance().setPlaySpeed(Preferences::defaultPlaySpeed);
    (void)allPhrases();
    record.increment(UserInfoKey::startCount);
    return true;
}

#include "AppDelegate.h"

#include "AppConfig.h"
#include "Preferences.h"
#include "RatingPrompt.h"
#include "UserRecord.h"
#include "content/AppCommon.h"

bool AppDelegate::didFinishLaunching()
{
    openUserRecord();
    Preferences::instance().setPlaySpeed(Preferences::defaultPlaySpeed);
    (void)allPhrases();
    incrementUserInfoCounter(UserInfoKey::startCount);
    // The prompt is never shown at launch: the main window asks once the learner comes back to
    // the main screen from a study screen.
    RatingPrompt &prompt = RatingPrompt::instance();
    prompt.configure({AppConfig::appVersion(), 3, AppConfig::reviewPageUrl()});
    prompt.logUse();
    return true;
}

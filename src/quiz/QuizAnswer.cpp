#include "QuizAnswer.h"

#include "app/Preferences.h"
#include "content/AppCommon.h"

QString motherText(const PhraseInfo &phrase)
{
    return translation(phrase, Preferences::instance().languageType());
}

bool isRightAnswer(const PhraseInfo &expected, const PhraseInfo &given)
{
    return foreignText(expected).toLower() == foreignText(given).toLower();
}

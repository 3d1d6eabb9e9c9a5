#include "AppColors.h"

#include "content/VoAppCommon.h"

QColor AppColors::body()
{
    return VoAppCommon::getBodyBgColor();
}

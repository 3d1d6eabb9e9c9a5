#include "ExternalLinks.h"

#include "content/VoLog.h"

#include <QDesktopServices>
#include <QUrl>

namespace ExternalLinks {

bool open(const QUrl &url)
{
    if (QDesktopServices::openUrl(url))
        return true;
    VoLog::write(lcApp(), VoLog::Error,
                 QStringLiteral("Nothing could open %1").arg(url.toDisplayString()));
    return false;
}

} // namespace ExternalLinks

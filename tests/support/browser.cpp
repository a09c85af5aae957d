// What the program wants to show outside itself.

#include "support/browser.h"

#include <QDesktopServices>

namespace {

const QString schemes[] = {QString(), QStringLiteral("http"), QStringLiteral("https")};

} // namespace

Browser::Browser()
{
    for (const QString& scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open"); // which knows slots by their names only
}

Browser::~Browser()
{
    for (const QString& scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

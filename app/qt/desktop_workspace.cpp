#include "app/qt/desktop_workspace.h"

#include <QDesktopServices>
#include <QUrl>
#include <QUrlQuery>

namespace velmora::qt {

void DesktopWorkspace::openUrl(const std::string& url) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

void DesktopWorkspace::composeMail(const std::string& recipient, const std::string& subject,
                                   const std::string& body) {
    QUrl mail;
    mail.setScheme("mailto");
    mail.setPath(QString::fromStdString(recipient));
    QUrlQuery query;
    query.addQueryItem("subject", QString::fromStdString(subject));
    if (!body.empty()) {
        query.addQueryItem("body", QString::fromStdString(body));
    }
    mail.setQuery(query);
    // Without a mail program nothing opens, and there is nothing else to offer.
    QDesktopServices::openUrl(mail);
}

} // namespace velmora::qt

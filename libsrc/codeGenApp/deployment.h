#ifndef CODE_GEN_APP_DEPLOYMENT_H
#define CODE_GEN_APP_DEPLOYMENT_H

#include <QtCore/QString>

// What differs from one place of installation to another: how to reach the support, and where the toolkit's product
// versions are listed. An installation fills in the file; every text is empty until then.
struct DtDeployment
{
    QString address; // may have several lines
    QString telephone;
    QString webAddress;
    QString mailAddress;
    QString versionPage;

    // A file that is missing or broken gives empty texts, the latter with a warning.
    static DtDeployment read(const QString& file = QStringLiteral("../data/config/deployment.xml"));
};

#endif

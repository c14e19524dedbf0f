#include "resources/Resources.h"

const QImage& movieLogo()
{
    static const QImage logo(QStringLiteral(":/marrowvale/BlackandwhiteMovielogo.jpg"));
    return logo;
}

QString symbolPath(const QString& name)
{
    return QStringLiteral(":/marrowvale/symbols/%1.svg").arg(name);
}

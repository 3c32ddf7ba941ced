// galerie/Affichage.cpp
#include "Affichage.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <xcb/xcb.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// What stands behind the last "-option" or "--option", as Qt reads its own; else empty.
QString DonneValeur(QStringList const & arguments, QString const & option)
{
    QString valeur;
    for (qsizetype i = 1; i + 1 < arguments.size(); ++i)
        if (arguments.at(i) == u'-' + option || arguments.at(i) == u"--"_s + option)
            valeur = arguments.at(++i);
    return valeur;
}

// Without their parameters, the preferred one first; empty when the choice is left to Qt.
QStringList DonnePlateformes(QStringList const & arguments)
{
    QString noms = DonneValeur(arguments, u"platform"_s);
    if (noms.isEmpty())
        noms = qEnvironmentVariable("QT_QPA_PLATFORM");
    QStringList plateformes;
    for (QString const & nom : noms.split(u';', Qt::SkipEmptyParts))
        plateformes.append(nom.section(u':', 0, 0));
    return plateformes;
}

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

bool RepondX11(QString const & serveur)
{
    // Null stands for the one that DISPLAY names.
    QByteArray const nom = serveur.toLocal8Bit();
    xcb_connection_t * const connexion =
        xcb_connect(nom.isEmpty() ? nullptr : nom.constData(), nullptr);
    bool const reussie = xcb_connection_has_error(connexion) == 0;
    xcb_disconnect(connexion);
    return reussie;
}

bool ExisteWayland()
{
    QString const prise = qEnvironmentVariable("WAYLAND_DISPLAY");
    return !prise.isEmpty() &&
           QFileInfo::exists(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).filePath(prise));
}

bool PlateformeAffiche(QString const & plateforme, QStringList const & arguments)
{
    if (plateforme == u"xcb")
        return RepondX11(DonneValeur(arguments, u"display"_s));
    if (plateforme.startsWith(u"wayland"))
        return ExisteWayland();
    return plateforme != u"offscreen" && plateforme != u"minimal";
}

QStringList DonnePlateformesDuSysteme()
{
    return {u"wayland"_s, u"xcb"_s};
}

#else

bool PlateformeAffiche(QString const & plateforme, QStringList const &)
{
    return plateforme != u"offscreen" && plateforme != u"minimal";
}

QStringList DonnePlateformesDuSysteme()
{
    return {QString()}; // there is one, which has its display
}

#endif

} // namespace

bool PeutAfficher(QStringList const & arguments)
{
    QStringList plateformes = DonnePlateformes(arguments);
    if (plateformes.isEmpty())
        plateformes = DonnePlateformesDuSysteme();
    return std::any_of(plateformes.cbegin(), plateformes.cend(), [&](QString const & plateforme) {
        return PlateformeAffiche(plateforme, arguments);
    });
}

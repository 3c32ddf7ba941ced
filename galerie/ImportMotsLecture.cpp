// galerie/ImportMotsLecture.cpp
#include "ImportMotsLecture.h"

#include "TraductionGalerie.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {
constexpr qint64 kMorceau = 512 * 1024; // bytes, a few milliseconds of a slow disk
} // namespace

ImportMotsLecture::ImportMotsLecture(QString const & fichier, QObject * parent, qsizetype limite)
    : QObject(parent)
    , monFichier(fichier)
    , maLimite(limite)
{
    QMetaObject::invokeMethod(this, &ImportMotsLecture::Ouvre, Qt::QueuedConnection);
}

QString ImportMotsLecture::DonneMessage() const
{
    UniChaine const fichier(QDir::toNativeSeparators(monFichier.fileName()));
    switch (monResultat) {
    case kEnCours:
    case kLu:
        break;
    case kAbsent:
        return TraductionGalerie(TexteGalerie("Il n’y a pas de fichier {1}."), {fichier});
    case kIllisible:
        return TraductionGalerie(TexteGalerie("{1} ne peut pas être lu."), {fichier});
    case kTropLong:
        return TraductionGalerie(TexteGalerie("{1} est trop long : au plus {2}."),
                                 {fichier, UniChaine(QLocale().formattedDataSize(maLimite, 0))});
    case kBinaire:
        return TraductionGalerie(TexteGalerie("{1} n’est pas un texte."), {fichier});
    }
    return {};
}

void ImportMotsLecture::Ouvre()
{
    QFileInfo const infos(monFichier.fileName());
    if (!infos.exists())
        return Termine(kAbsent);
    // A pipe would make everything wait for who writes into it.
    if (!infos.isFile() || !monFichier.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return Termine(kIllisible);
    LisMorceau();
}

void ImportMotsLecture::LisMorceau()
{
    QByteArray const morceau = monFichier.read(kMorceau);
    if (monFichier.error() != QFileDevice::NoError)
        return Termine(kIllisible);
    if (morceau.isEmpty())
        return Termine(kLu);
    if (morceau.contains('\0'))
        return Termine(kBinaire);
    mesOctets += morceau;
    if (mesOctets.size() > maLimite)
        return Termine(kTropLong);
    QMetaObject::invokeMethod(this, &ImportMotsLecture::LisMorceau, Qt::QueuedConnection);
}

void ImportMotsLecture::Termine(eResultat resultat)
{
    monFichier.close();
    monResultat = resultat;
    if (resultat != kLu)
        mesOctets.clear();
    Q_EMIT SignalTermine();
}

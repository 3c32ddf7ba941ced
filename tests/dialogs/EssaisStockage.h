// tests/dialogs/EssaisStockage.h
#pragma once

#include "dialogs/StockageReponse.h"

#include <QTemporaryDir>

/// Stores of remembered answers of their own, in files that go with this object.
class EssaisStockage
{
public:
    EssaisStockage()
    {
        StockageReponse::Initialise(DDialogue::StockeurNePlusMAviser, UniChaine(DonneFichier()),
                                    QSettings::IniFormat);
        StockageReponse::Initialise(DDialogue::StockeurParDefaut,
                                    UniChaine(DonneFichier(DDialogue::StockeurParDefaut)),
                                    QSettings::IniFormat);
    }
    EssaisStockage(EssaisStockage const &) = delete;
    EssaisStockage & operator=(EssaisStockage const &) = delete;
    ~EssaisStockage()
    {
        StockageReponse::LibereSingletons();
        StockageReponse::assocTypQSettings.clear();
    }

    QString DonneFichier(DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser) const
    {
        return monDossier.filePath(type == DDialogue::StockeurNePlusMAviser
                                       ? QStringLiteral("aviser.ini")
                                       : QStringLiteral("defaut.ini"));
    }

    /// The GUIDs of the file with their answers, as somebody else would read them.
    QVariantMap DonneContenu(DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser) const
    {
        QSettings reglages(DonneFichier(type), QSettings::IniFormat);
        reglages.beginGroup(QStringLiteral("messageMemoire"));
        QVariantMap contenu;
        for (QString const & cle : reglages.allKeys())
            contenu.insert(cle, reglages.value(cle).toInt());
        return contenu;
    }

    void Ecris(QString const & guid, int reponse,
               DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser) const
    {
        QSettings reglages(DonneFichier(type), QSettings::IniFormat);
        reglages.setValue(QStringLiteral("messageMemoire/") + guid, reponse);
    }

private:
    QTemporaryDir monDossier;
};

// dialogs/EssaisBoites.h
#pragma once

#include "dialogs/FormesAlertes.h"

// One message box at a time, asked of the user without blocking.
namespace EssaisAlertes {

/// A box on screen and its answers; gone with this object.
class BoiteMontree
{
public:
    /// Without a check box if the type of the store is the default one.
    explicit BoiteMontree(DAlerteInfo const & info, int boutons = DDialogue::kBoutonOk,
                          quint32 defaut = DDialogue::kBoutonOk,
                          quint32 echap = DDialogue::kBoutonOk, QWidget * parent = nullptr,
                          DDialogue::eTypStockeur type = DDialogue::StockeurParDefaut,
                          std::array<UniChaine, 5> const & labels = {})
    {
        DAlerteRappel(parent, &receveur, info, type, QStringLiteral("guid"), boutons,
                      static_cast<DDialogue::eBoutons>(defaut),
                      static_cast<DDialogue::eBoutons>(echap), labels[0], labels[1], labels[2],
                      labels[3], labels[4]);
        boite = BoiteDevant();
        if (!boite)
            qFatal("no message box is shown");
    }
    BoiteMontree(BoiteMontree const &) = delete;
    BoiteMontree & operator=(BoiteMontree const &) = delete;
    ~BoiteMontree() { delete boite; }

    DMessageBox * operator->() const { return boite; }
    DMessageBox & operator*() const { return *boite; }

    /// The label with the message or the informative text; null when there is none.
    QLabel * DonneEtiquette(char const * nom) const
    {
        return boite->findChild<QLabel *>(QString::fromLatin1(nom));
    }
    QLabel * DonneMessage() const { return DonneEtiquette("qt_msgbox_label"); }
    QLabel * DonneTexte() const { return DonneEtiquette("qt_msgbox_informativelabel"); }

    QPointer<DMessageBox> boite;
    ReceveurSimulay receveur;
};

inline DAlerteInfo Alerte(DAlerteInfo::eTypeDialogue type = DAlerteInfo::kQuestion,
                          QString const & message = QStringLiteral("Message"),
                          QString const & note = {}, QString const & titre = {})
{
    return {type, UniChaine(message), UniChaine(note), UniChaine(titre)};
}

/// An alert with an explanation; a class of the application's.
class AlerteExpliquee : public DAlerteInfo
{
public:
    AlerteExpliquee(QString const & explication, QString const & note)
        : DAlerteInfo(kInformation, UniChaine("Message"), UniChaine(note))
        , monExplication(explication)
    {
    }
    UniChaine DonneExplication() const override { return UniChaine(monExplication); }

private:
    QString monExplication;
};

} // namespace EssaisAlertes

// dialogs/StockageReponse.cpp
#include "dialogs/StockageReponse.h"

namespace {

constexpr QLatin1StringView kGroupe("messageMemoire");

std::shared_ptr<QSettings> CopieReglages(QSettings const & modele)
{
    return std::make_shared<QSettings>(modele.fileName(), modele.format(), modele.parent());
}

} // namespace

StockageReponse::StockageReponse(DDialogue::eTypStockeur type, QSettings * reglagesModele)
    : monAfficheCase(type == DDialogue::StockeurNePlusMAviser)
    , monType(type)
    , mesReglages(CopieReglages(*reglagesModele))
{
}

StockageReponse::StockageReponse(StockageReponse const & autre)
    : monAfficheCase(autre.monAfficheCase)
    , monGuid(autre.monGuid)
    , monType(autre.monType)
    , mesReglages(CopieReglages(*autre.mesReglages))
{
}

StockageReponse::~StockageReponse() = default;

void StockageReponse::Initialise(DDialogue::eTypStockeur type, UniChaine const & nomFichier,
                                 QSettings::Format format)
{
    assocTypQSettings[type] = {nomFichier, format};
}

StockageReponse * StockageReponse::Instance(DDialogue::eTypStockeur type, UniChaine const & guid)
{
    StockageReponse *& instance = laListeStockeurDefaut[type];
    if (!instance) {
        auto const & [nomFichier, format] = assocTypQSettings[type];
        QSettings modele(nomFichier, format, nullptr);
        instance = new StockageReponse(type, &modele);
    }
    instance->UtiliseGuid(guid);
    return instance;
}

void StockageReponse::LibereSingletons()
{
    for (auto const & [type, stockeur] : laListeStockeurDefaut)
        delete stockeur;
    laListeStockeurDefaut.clear();
}

void StockageReponse::ReinitialiseToutLeStockeur(DDialogue::eTypStockeur type)
{
    Instance(type, kUniChaineNulle)->Reinitialise(kUniChaineNulle);
}

bool StockageReponse::UtilisateurADejaRepondu() const
{
    return DonneReponseEnregistree() != DDialogue::kBoutonAucun;
}

DDialogue::eBoutons StockageReponse::DonneReponseEnregistree() const
{
    if (monGuid.Longueur() < 1)
        return DDialogue::kBoutonAucun;
    mesReglages->beginGroup(kGroupe);
    int const reponse = mesReglages->value(QString(monGuid), QVariant(0)).toInt();
    mesReglages->endGroup();
    return static_cast<DDialogue::eBoutons>(reponse);
}

void StockageReponse::ActualiseReponse(int reponse)
{
    mesReglages->beginGroup(kGroupe);
    mesReglages->setValue(QString(monGuid), reponse);
    mesReglages->endGroup();
}

void StockageReponse::ReinitialiseSelonGuid()
{
    Reinitialise(monGuid);
}

UniChaine StockageReponse::DonneMessagePourJournalisation() const
{
    UniChaine message;
    if (UtilisateurADejaRepondu()) {
        message += UniChaine("TypeDeStockeur: ");
        message += UniChaine(monType == DDialogue::StockeurParDefaut ? "StockeurParDefaut\t"
                                                                     : "StockeurNePlusMAviser\t");
    }
    message += UniChaine("GUID: ");
    message += monGuid;
    message += UniChaine("\t");
    return message;
}

void StockageReponse::Reinitialise(UniChaine const & cle)
{
    mesReglages->sync(); // what another process has written is forgotten, too
    mesReglages->beginGroup(kGroupe);
    mesReglages->remove(QString(cle));
    mesReglages->endGroup();
}

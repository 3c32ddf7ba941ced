// dialogs/tst_DAlerteMatrice.cpp
//
// Every form of an alert, with every type, in every situation, against a small model of the rules.
#include "dialogs/FormesAlertes.h"

#include "dialogs/DAlerteEphemere_p.h"
#include "dialogs/DDialogueProgressionInfinie.h"

#include <QtTest>

#include <QThread>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

constexpr float kLongtemps = 3600.0F; // s, no test lasts as long
constexpr int kDelaiThread = 5000;    // ms

QString const kMessage = u"Message"_s;

enum class eSituation
{
    kMontree,
    kSilencieuse,
    kRetenue,
    kAutreThread,
    kSansMessage
};

constexpr struct
{
    eSituation situation;
    char const * nom;
} kSituations[] = {
    {eSituation::kMontree, "shown"},          {eSituation::kSilencieuse, "silent"},
    {eSituation::kRetenue, "remembered"},     {eSituation::kAutreThread, "wrong thread"},
    {eSituation::kSansMessage, "no message"},
};

enum class eFenetre
{
    kAucune,
    kBulle,
    kAttente,
    kBoite
};

// What becomes of one call.
struct Issue
{
    eFenetre fenetre = eFenetre::kAucune;
    quint32 retour = kBoutonAucun;
    QList<int> reponses{}; // to the callback or the receiver
    QStringList lignes{};  // of the journal
    QStringList silencieux{};
    QVariantMap fichier{};
};

QString NomReponse(quint32 reponse)
{
    switch (reponse) {
    case kBoutonOk:
        return u"OK"_s;
    case kBoutonOui:
        return u"Oui"_s;
    case kBoutonNon:
        return u"Non"_s;
    case kBoutonReessayer:
        return u"Réessayer"_s;
    default:
        return QString::number(reponse);
    }
}

// The rules, said anew.
class Modele
{
public:
    Modele(Forme const & forme, int type, eSituation situation)
        : maForme(forme)
        , monType(type)
        , maSituation(situation)
    {
    }

    Issue Calcule() const
    {
        Issue issue;
        if (maSituation == eSituation::kRetenue)
            issue.fichier = {{u"guid"_s, int(kBoutonReessayer)}};
        if (EstRefusee())
            return issue;
        bool const silence = maSituation == eSituation::kSilencieuse;
        if (monType == DAlerteInfo::kEphemere || monType == DAlerteInfo::kProgressionInfinie) {
            if (!silence)
                issue.fenetre =
                    monType == DAlerteInfo::kEphemere ? eFenetre::kBulle : eFenetre::kAttente;
            return issue;
        }
        AjouteReponse(issue);
        return issue;
    }

    // What the user answers when asked: the mouse and the keyboard take turns.
    quint32 DonneReponseUtilisateur() const
    {
        if (!maForme.aBoutons)
            return kBoutonOk;
        return RepondsALaSouris() ? kBoutonNon : kBoutonOui;
    }
    bool RepondsALaSouris() const { return monType % 2 == 1; }
    bool EstSynchrone() const { return maForme.Bloque() && monType != DAlerteInfo::kNotification; }

private:
    bool EstRefusee() const
    {
        QString const nom = QString::fromLatin1(maForme.nom);
        if (maSituation == eSituation::kSansMessage)
            return nom.startsWith("DAlerteCentrageNatif"_L1) && nom.endsWith("receiver"_L1);
        bool const sansReponse =
            monType == DAlerteInfo::kEphemere || monType == DAlerteInfo::kProgressionInfinie;
        return maSituation == eSituation::kAutreThread || (maForme.Bloque() && sansReponse);
    }

    void AjouteReponse(Issue & issue) const
    {
        bool const retenue = maSituation == eSituation::kRetenue && maForme.aStockage;
        bool const silence = maSituation == eSituation::kSilencieuse;
        bool const montree = !retenue && !silence;
        quint32 reponse = DonneReponseUtilisateur();
        if (retenue)
            reponse = kBoutonReessayer;
        else if (silence)
            reponse = maForme.aBoutons ? kBoutonOui : kBoutonOk;

        if (EstSynchrone())
            issue.retour = reponse;
        if (!maForme.Bloque())
            issue.reponses << static_cast<int>(reponse);
        if (montree)
            issue.fenetre = eFenetre::kBoite;
        if (montree && maForme.aStockage)
            issue.fichier = {{u"guid"_s, static_cast<int>(reponse)}};

        // A box that does not block has no answer yet when the journal hears of it.
        QString const texte = DonneTexte(montree && !EstSynchrone() ? 0 : reponse, retenue);
        issue.lignes << DonneLibelle(retenue, silence) + texte;
        if (!montree)
            issue.silencieux << texte;
    }

    QString DonneTexte(quint32 reponse, bool retenue) const
    {
        QString const message = maSituation == eSituation::kSansMessage ? QString() : kMessage;
        QString const guid = maForme.aStockage ? u"guid"_s : QString();
        return u"Réponse=%1\t%2\t%3GUID: %4\t"_s.arg(
            NomReponse(reponse), message,
            retenue ? u"TypeDeStockeur: StockeurNePlusMAviser\t"_s : QString(), guid);
    }

    QString DonneLibelle(bool retenue, bool silence) const
    {
        if (EstSynchrone())
            return retenue ? u"Dialogue déjà répondu."_s
                           : (silence ? u"Dialogue silencieux."_s : u"Dialogue modal."_s);
        return retenue ? u"Dialogue asynchrone déjà répondu."_s
                       : (silence ? u"Dialogue asynchrone silencieux."_s
                                  : u"Dialogue asynchrone non répondu"_s);
    }

    Forme const & maForme;
    int monType;
    eSituation maSituation;
};

eFenetre FenetreVisible()
{
    for (QWidget * const fenetre : QApplication::topLevelWidgets()) {
        if (!fenetre->isVisible())
            continue;
        if (qobject_cast<DAlerteEphemere *>(fenetre))
            return eFenetre::kBulle;
        if (qobject_cast<DDialogueProgressionInfinie *>(fenetre))
            return eFenetre::kAttente;
        if (qobject_cast<DMessageBox *>(fenetre))
            return eFenetre::kBoite;
    }
    return eFenetre::kAucune;
}

quint32 Lance(Forme const & forme, Appel const & appel, eSituation situation)
{
    if (situation != eSituation::kAutreThread)
        return forme.lance(appel);
    quint32 retour = 1;
    std::unique_ptr<QThread> const thread(QThread::create([&] { retour = forme.lance(appel); }));
    thread->start();
    if (!thread->wait(kDelaiThread))
        qFatal("a refused call blocks");
    return retour;
}

} // namespace

class tst_DAlerteMatrice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void alerte_data();
    void alerte();
};

void tst_DAlerteMatrice::cleanup()
{
    RetireRestes();
    qDeleteAll(Fenetres<DAlerteEphemere>());
    qDeleteAll(Fenetres<DDialogueProgressionInfinie>());
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAlerteMatrice::alerte_data()
{
    QTest::addColumn<QString>("forme");
    QTest::addColumn<int>("type");
    QTest::addColumn<eSituation>("situation");
    for (Forme const & forme : kFormes)
        for (int type = DAlerteInfo::kQuestion; type <= DAlerteInfo::kSansIcone; ++type)
            for (auto const & [situation, nom] : kSituations)
                QTest::addRow("%s, type %d, %s", forme.nom, type, nom)
                    << QString::fromLatin1(forme.nom) << type << situation;
}

void tst_DAlerteMatrice::alerte()
{
    QFETCH(QString, forme);
    QFETCH(int, type);
    QFETCH(eSituation, situation);
    Banc const banc;
    Modele const modele(PreteForme(forme), type, situation);
    Issue const attendu = modele.Calcule();
    if (situation == eSituation::kRetenue)
        banc.stockage.Ecris(u"guid"_s, kBoutonReessayer);
    if (situation == eSituation::kSilencieuse)
        ExecutionSilencieuse::Demarre();

    QList<int> reponses;
    ReceveurNotant receveur;
    auto const temoin = std::make_shared<int>();
    std::weak_ptr<int> const vie = temoin;
    Appel appel{
        DAlerteInfo(static_cast<DAlerteInfo::eTypeDialogue>(type),
                    UniChaine(situation == eSituation::kSansMessage ? QString() : kMessage))};
    appel.info.dureeAffichage = kLongtemps;
    appel.boutons = kBoutonOui | kBoutonNon | kBoutonAnnuler;
    appel.defaut = kBoutonOui;
    appel.echap = kBoutonAnnuler;
    appel.guid = u"guid"_s;
    appel.receveur = &receveur;
    appel.rappel = [&reponses, copie = temoin](eBoutons const & reponse) {
        reponses << static_cast<int>(reponse);
    };
    eFenetre vue = eFenetre::kAucune;
    Repondant const utilisateur([&](DMessageBox & boite) {
        vue = FenetreVisible();
        Coche(boite);
        if (modele.RepondsALaSouris())
            Clique(boite.buttons().size() == 1 ? boite.buttons().constFirst()
                                               : boite.button(QMessageBox::No));
        else
            Tape(boite, Qt::Key_Return);
    });

    quint32 const retour = Lance(PreteForme(forme), appel, situation);

    QCOMPARE(retour, attendu.retour);
    QCOMPARE(banc.journal.DonneLignes(), attendu.lignes);
    if (!modele.EstSynchrone()) {
        QCOMPARE(reponses + DonneReponses(receveur), QList<int>()); // never inside the call
        vue = FenetreVisible();
    }
    QVERIFY(AttendsFinDesBoites());
    if (modele.EstSynchrone() && attendu.fenetre != eFenetre::kBoite)
        vue = FenetreVisible();
    QCOMPARE(vue, attendu.fenetre);
    QCOMPARE(utilisateur.DonneNombre(), attendu.fenetre == eFenetre::kBoite ? 1 : 0);
    QCOMPARE(reponses + DonneReponses(receveur), attendu.reponses);
    QCOMPARE(ExecutionSilencieuse::DonneDialoguesJournalises(),
             QList<UniChaine>(attendu.silencieux.begin(), attendu.silencieux.end()));
    QCOMPARE(banc.journal.DonneLignes(), attendu.lignes);
    QVERIFY(banc.journal.AppelsSontComplets());
    QCOMPARE(banc.stockage.DonneContenu(), attendu.fichier);
    appel.rappel = {};
    QCOMPARE(vie.use_count(), 1L); // the callback is not kept
}

QTEST_MAIN(tst_DAlerteMatrice)
#include "tst_DAlerteMatrice.moc"

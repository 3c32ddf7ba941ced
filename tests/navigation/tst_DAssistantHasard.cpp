// tests/navigation/tst_DAssistantHasard.cpp
#include "navigation/EssaisAssistant.h"

#include <QRandomGenerator>

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

namespace {

constexpr int kNombre = 7;
constexpr int kActions = 5000;

/// What a step answers, and which buttons it enables when it is entered.
struct Reponses
{
    bool peutRevenir, peutAvancer, bloqueRetour, bloqueAvance, gardePrecedent, suivant, termine;
};

/// The wizard as numbers.
struct Modele
{
    Reponses reponses[kNombre] = {};
    bool actives[kNombre] = {};
    QList<int> historique;
    int courante = -1;
    int maxEtape = 0;
    bool precedent = false, suivant = false, termine = false;

    void Entre()
    {
        suivant = suivant || reponses[courante].suivant;
        termine = termine || reponses[courante].termine;
    }
    void Affiche()
    {
        if (courante < 0) {
            courante = 0;
            actives[0] = true;
        }
        Entre();
    }
    bool Avance()
    {
        if (courante < 0 || reponses[courante].bloqueAvance)
            return false;
        suivant = termine = false;
        if (!reponses[courante].peutAvancer || courante == kNombre - 1)
            return false;
        historique.append(courante++);
        precedent = true;
        maxEtape = qMax(maxEtape, courante);
        actives[courante] = true;
        Entre();
        return true;
    }
    void Recule()
    {
        if (courante < 0 || reponses[courante].bloqueRetour || !reponses[courante].peutRevenir ||
            historique.isEmpty())
            return;
        courante = historique.takeLast();
        suivant = termine = false;
        if (historique.isEmpty() && !reponses[courante].gardePrecedent)
            precedent = false;
        Entre();
    }
    void Saute(int rangee)
    {
        if (courante < 0 || !actives[rangee])
            return;
        int const distance = rangee - courante;
        for (int pas = 0; pas < -distance; ++pas)
            Recule();
        for (int pas = 0; pas < distance && Avance(); ++pas)
            ;
    }
    void Reinitialise()
    {
        courante = -1;
        historique.clear();
        std::fill(std::begin(actives), std::end(actives), false);
    }
    QString Texte() const
    {
        QString texte = u"step %1 of path %2, max %3, rows"_s.arg(courante)
                            .arg(historique.size() + 1)
                            .arg(maxEtape);
        for (int i = 0; i < kNombre; ++i)
            texte += actives[i] ? u" %1"_s.arg(i) : QString();
        texte += u" a"_s;
        texte += precedent ? u"p"_s : QString();
        texte += suivant ? u"s"_s : QString();
        return texte + (termine ? u"t"_s : QString());
    }
};

QString Texte(Banc & banc)
{
    QString const titre = banc.assistant->DonneTitreGenerique(nullptr);
    QString texte = u"step %1 of path %2, max %3, rows"_s.arg(banc.Rangee())
                        .arg(titre.section(u' ', 1, 1))
                        .arg(banc.assistant->DonneMaxEtapeParcouru());
    for (int const rangee : banc.Actives())
        texte += u" %1"_s.arg(rangee);
    return texte + u' ' + banc.Boutons();
}

} // namespace

class tst_DAssistantHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void marche_data();
    void marche();

private:
    static void TireReponses(Banc & banc, Modele & modele, QRandomGenerator & hasard);
    static QString Agis(Banc & banc, Modele & modele, QRandomGenerator & hasard);
};

void tst_DAssistantHasard::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantHasard::TireReponses(Banc & banc, Modele & modele, QRandomGenerator & hasard)
{
    auto const rare = [&hasard] { return hasard.bounded(6) == 0; };
    for (int i = 0; i < kNombre; ++i) {
        Reponses & reponses = modele.reponses[i];
        reponses = {!rare(), !rare(), rare(), rare(), rare(), !rare(), rare()};
        EtapeTemoin & etape = *banc.etapes.at(i);
        etape.peutRevenir = reponses.peutRevenir;
        etape.peutAvancer = reponses.peutAvancer;
        etape.bloqueRetour = reponses.bloqueRetour;
        etape.bloqueAvance = reponses.bloqueAvance;
        etape.gardePrecedent = reponses.gardePrecedent;
        etape.enEntrant = [&banc, &reponses] {
            if (reponses.suivant)
                banc.assistant->ActiveBoutonSuivant(true);
            if (reponses.termine)
                banc.assistant->ActiveBoutonTermine(true);
        };
    }
}

QString tst_DAssistantHasard::Agis(Banc & banc, Modele & modele, QRandomGenerator & hasard)
{
    int const tirage = hasard.bounded(100);
    int const rangee = hasard.bounded(kNombre);
    if (tirage < 30) {
        bool const resultat = modele.Avance();
        return banc.assistant->PriseBoutonSuivant() == resultat ? u"next"_s : u"wrong result"_s;
    }
    if (tirage < 45) {
        banc.assistant->PriseBoutonPrecedent();
        modele.Recule();
        return u"previous"_s;
    }
    if (tirage < 80) {
        banc.Clique(rangee);
        modele.Saute(rangee);
        return u"click %1"_s.arg(rangee);
    }
    if (tirage < 95) {
        bool const bas = hasard.bounded(2);
        QTest::keyClick(banc.liste, bas ? Qt::Key_Down : Qt::Key_Up);
        int cible = modele.courante + (bas ? 1 : -1);
        while (cible >= 0 && cible < kNombre && !modele.actives[cible])
            cible += bas ? 1 : -1;
        if (cible >= 0 && cible < kNombre)
            modele.Saute(cible);
        return bas ? u"down"_s : u"up"_s;
    }
    if (tirage < 97) {
        banc.assistant->DebarreToutesLesEtapes();
        std::fill(std::begin(modele.actives), std::end(modele.actives), true);
        return u"unlock"_s;
    }
    banc.assistant->hide();
    if (tirage == 99) {
        banc.assistant->Reinitialise();
        modele.Reinitialise();
    }
    banc.assistant->show();
    modele.Affiche();
    return tirage == 99 ? u"start again"_s : u"show again"_s;
}

void tst_DAssistantHasard::marche_data()
{
    QTest::addColumn<quint32>("graine");
    for (quint32 const graine : {1u, 20u, 300u})
        QTest::addRow("seed %u", graine) << graine;
}

void tst_DAssistantHasard::marche()
{
    QFETCH(quint32, graine);
    QRandomGenerator hasard(graine);
    Banc banc(kNombre, false);
    Modele modele;
    TireReponses(banc, modele, hasard);
    banc.Montre();
    modele.Affiche();
    QSet<int> atteintes;
    for (int action = 0; action < kActions; ++action) {
        if (hasard.bounded(4) == 0)
            TireReponses(banc, modele, hasard);
        QString const avant = modele.Texte();
        QString const geste = Agis(banc, modele, hasard);
        banc.journal.clear();
        atteintes.insert(modele.courante);
        if (Texte(banc) != modele.Texte())
            qInfo().noquote() << "action" << action << geste << "after" << avant;
        QCOMPARE(Texte(banc), modele.Texte());
        QVERIFY(geste != u"wrong result"_s);
    }
    QCOMPARE(atteintes.size(), kNombre);
}

QTEST_MAIN(tst_DAssistantHasard)
#include "tst_DAssistantHasard.moc"

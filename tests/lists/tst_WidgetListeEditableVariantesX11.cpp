#include "lists/WidgetListeEditableAvecListeChoix.h"
#include "lists/WidgetListeEditableDragAndDrop.h"

#include "lists/EssaisVariantes.h"
#include "lists/ListeChoixFlottante.h"
#include "outils/EntreeX11.h"

#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace EssaisVariantes;
using namespace Qt::StringLiterals;

// Under a real window manager, with a mouse and a keyboard that it sees.
class tst_WidgetListeEditableVariantesX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void glissement();
    void glissementAnnulay();
    void glissementHorsDeLaListe();
    void propositionAuClavier();
    void propositionALaSouris();

private:
    using Deplacable = Ouverte<WidgetListeEditableDragAndDrop>;
    using AvecChoix = Ouverte<WidgetListeEditableAvecListeChoix>;

    template <typename Liste>
    void Montre(std::unique_ptr<Liste> & liste);
    bool Glisse(QPoint const & depart, QPoint const & but, std::function<void()> const & fin);

    EntreeX11 monEntree;
    std::unique_ptr<Deplacable> mesLignes;
    std::unique_ptr<AvecChoix> mesMots;
};

namespace {

constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time
constexpr int kPas = 20;       // ms between two steps of a drag

WidgetListeEditableAvecListeChoix::Propositions Propose(int, QString const & texte)
{
    WidgetListeEditableAvecListeChoix::Propositions rangees;
    for (QString const & mot : {u"arbre"_s, u"arc"_s, u"bateau"_s})
        if (mot.startsWith(texte))
            rangees.append({new QStandardItem(mot)});
    return rangees;
}

} // namespace

template <typename Liste>
void tst_WidgetListeEditableVariantesX11::Montre(std::unique_ptr<Liste> & liste)
{
    liste = std::make_unique<Liste>();
    liste->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    liste->show();
    QVERIFY(QTest::qWaitForWindowExposed(liste.get(), kDelai));
    // Again and again: a manager forgets what is asked for a window that it is still placing.
    auto const activee = [&] {
        liste->activateWindow();
        return liste->isActiveWindow();
    };
    QTRY_VERIFY_WITH_TIMEOUT(activee(), kDelai);
    liste->PreteVue()->setFocus();
}

// Qt runs a loop of its own for as long as a drag lasts, which the steps come into. False when the
// gesture did not come to its end.
bool tst_WidgetListeEditableVariantesX11::Glisse(QPoint const & depart, QPoint const & but,
                                                 std::function<void()> const & fin)
{
    QList<std::function<void()>> const etapes = {
        [&] { monEntree.Deplace(depart); },
        [&] { monEntree.Presse(); },
        [&] { monEntree.Deplace(depart + QPoint(4, 0)); },
        [&] { monEntree.Deplace(depart + QPoint(20, 0)); },
        [&] { monEntree.Deplace((depart + but) / 2); },
        [&] { monEntree.Deplace(but - QPoint(2, 0)); },
        [&] { monEntree.Deplace(but); },
        fin,
        [] {}, // what remains of the gesture
    };
    int faites = 0;
    QTimer minuterie;
    connect(&minuterie, &QTimer::timeout, this, [&] {
        if (faites < etapes.size())
            etapes.at(faites++)();
    });
    minuterie.start(kPas);
    return QTest::qWaitFor([&] { return faites == etapes.size(); }, kDelai);
}

void tst_WidgetListeEditableVariantesX11::initTestCase()
{
    if (QGuiApplication::platformName() != u"xcb"_s || !monEntree.EstPrete())
        QSKIP("Needs an X server that simulates input.");
}

void tst_WidgetListeEditableVariantesX11::cleanup()
{
    monEntree.Relache();
    mesLignes.reset();
    mesMots.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableVariantesX11::glissement()
{
    Montre(mesLignes);
    QWidget const & surface = *mesLignes->PreteVue()->viewport();
    QSignalSpy const modifications(mesLignes.get(), &Deplacable::SignalElementsModifiay);
    mesLignes->Choisis({0, 1});

    QVERIFY(Glisse(surface.mapToGlobal(mesLignes->Milieu(0)),
                   surface.mapToGlobal(mesLignes->Milieu(3) + QPoint(0, 4)),
                   [this] { monEntree.Relache(); }));

    QTRY_COMPARE_WITH_TIMEOUT(mesLignes->Textes().join(QString()), u"cdab"_s, kDelai);
    QCOMPARE(mesLignes->Choisies(), (QList<int>{2, 3}));
    QCOMPARE(mesLignes->PreteVue()->currentIndex().row(), 2);
    QCOMPARE(modifications.count(), 1);
}

void tst_WidgetListeEditableVariantesX11::glissementAnnulay()
{
    Montre(mesLignes);
    QWidget const & surface = *mesLignes->PreteVue()->viewport();
    mesLignes->Choisis({0});

    QVERIFY(Glisse(surface.mapToGlobal(mesLignes->Milieu(0)),
                   surface.mapToGlobal(mesLignes->Milieu(3)),
                   [this] { monEntree.Frappe(EntreeX11::kEchappement); }));

    QCOMPARE(mesLignes->Textes().join(QString()), u"abcd"_s);
    QCOMPARE(mesLignes->Choisies(), QList<int>{0});
}

void tst_WidgetListeEditableVariantesX11::glissementHorsDeLaListe()
{
    Montre(mesLignes);
    QWidget const & surface = *mesLignes->PreteVue()->viewport();
    mesLignes->Choisis({0});

    QVERIFY(Glisse(surface.mapToGlobal(mesLignes->Milieu(0)),
                   mesLignes->mapToGlobal(mesLignes->rect().bottomRight()) + QPoint(60, 60),
                   [this] { monEntree.Relache(); }));

    QCOMPARE(mesLignes->Textes().join(QString()), u"abcd"_s);
}

void tst_WidgetListeEditableVariantesX11::propositionAuClavier()
{
    Montre(mesMots);
    mesMots->MetsProposant(Propose);
    mesMots->PriseBoutonAjouter();
    QTRY_COMPARE_WITH_TIMEOUT(mesMots->Editeurs().size(), 1, kDelai);
    ListeChoixFlottante & choix = *mesMots->PreteListeChoix();
    QTRY_VERIFY_WITH_TIMEOUT(choix.isVisible(), kDelai);

    monEntree.Frappe('a');
    QTRY_COMPARE_WITH_TIMEOUT(mesMots->Editeurs().value(0)->text(), u"a"_s, kDelai);
    QTRY_COMPARE_WITH_TIMEOUT(choix.PreteListeChoix()->model()->rowCount(), 2, kDelai);
    QVERIFY(mesMots->isActiveWindow());
    monEntree.Frappe(EntreeX11::kEchappement);
    QTRY_VERIFY_WITH_TIMEOUT(!choix.isVisible(), kDelai);
    QCOMPARE(mesMots->Editeurs().size(), 1);
    monEntree.Frappe('r');
    QTRY_VERIFY_WITH_TIMEOUT(choix.isVisible(), kDelai);
    monEntree.Frappe(EntreeX11::kBas);
    monEntree.Frappe(EntreeX11::kRetour);
    QTRY_COMPARE_WITH_TIMEOUT(mesMots->Textes().last(), u"arbre"_s, kDelai);
}

void tst_WidgetListeEditableVariantesX11::propositionALaSouris()
{
    Montre(mesMots);
    mesMots->MetsProposant(Propose);
    mesMots->PriseBoutonAjouter();
    ListeChoixFlottante & choix = *mesMots->PreteListeChoix();
    QTRY_VERIFY_WITH_TIMEOUT(choix.isVisible(), kDelai);
    QVERIFY(QTest::qWaitForWindowExposed(&choix, kDelai));
    QTreeView const & vue = *choix.PreteListeChoix();
    QPoint const milieu = vue.visualRect(vue.model()->index(2, 0)).center();
    // Until the list has noticed, which the window manager may still be moving.
    int essais = 0;
    auto const survolay = [&] {
        monEntree.Deplace(vue.viewport()->mapToGlobal(milieu) + QPoint(++essais % 2, 0));
        return vue.currentIndex().row() == 2;
    };
    QTRY_VERIFY_WITH_TIMEOUT(survolay(), kDelai);
    QCOMPARE(mesMots->Editeurs().size(), 1);

    monEntree.Clique(vue.viewport()->mapToGlobal(milieu));

    QTRY_COMPARE_WITH_TIMEOUT(mesMots->Textes().last(), u"bateau"_s, kDelai);
    QVERIFY(mesMots->isActiveWindow());
}

QTEST_MAIN(tst_WidgetListeEditableVariantesX11)
#include "tst_WidgetListeEditableVariantesX11.moc"

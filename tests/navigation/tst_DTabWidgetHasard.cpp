#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QRandomGenerator>
#include <QtTest>

#include <array>
#include <memory>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

constexpr int kGestes = 1'000;
constexpr int kWidgets = 3;
constexpr int kOngletsMax = 12;
constexpr int kCle = Qt::UserRole + 1;

// What a tab is expected to have.
struct Onglet
{
    QPointer<QPlainTextEdit> page;
    QString titre;
    int donnee = 0;
    bool icone = false;
};

struct Modele
{
    QList<Onglet> onglets;
    int courant = -1;

    void Insere(int index, Onglet const & onglet)
    {
        index = index < 0 || index > onglets.size() ? int(onglets.size()) : index;
        onglets.insert(index, onglet);
        if (onglets.size() == 1)
            courant = 0;
        else if (index <= courant)
            ++courant;
    }

    Onglet Retire(int index)
    {
        Onglet const onglet = onglets.takeAt(index);
        if (index < courant || courant == onglets.size())
            --courant;
        return onglet;
    }

    void Deplace(int de, int vers)
    {
        QWidget const * const active = onglets.at(courant).page;
        onglets.move(de, vers);
        for (int i = 0; i < onglets.size(); ++i)
            if (onglets.at(i).page == active)
                courant = i;
    }
};

// Three widgets of one group, each beside its model.
class Jeu
{
public:
    explicit Jeu(quint32 graine)
        : monHasard(graine)
    {
        for (auto & widget : widgets)
            widget = std::make_unique<DTabWidget>(nullptr, u"g"_s);
        widgets[1]->resize(800, 300);
        widgets[1]->show(); // one that is laid out
    }

    ~Jeu()
    {
        for (QPlainTextEdit * const page : std::as_const(retirees))
            delete page;
    }

    void Joue()
    {
        int const de = Choisis(kWidgets);
        Modele & modele = modeles[de];
        int const nombre = int(modele.onglets.size());
        int const geste = Choisis(12);
        if (nombre == 0 || (geste < 2 && nombre < kOngletsMax))
            Ajoute(de);
        else if (geste < 3)
            Ferme(de);
        else if (geste < 7)
            Envoie(de);
        else if (geste < 9)
            Deplace(de);
        else if (geste < 11)
            MetsCourant(de);
        else
            Renomme(de);
    }

    std::array<std::unique_ptr<DTabWidget>, kWidgets> widgets;
    std::array<Modele, kWidgets> modeles;
    QList<QPointer<QPlainTextEdit>> toutes;
    QList<QPointer<QPlainTextEdit>> retirees; // the host's
    int envois = 0;

private:
    int Choisis(int nombre) { return int(monHasard.bounded(nombre)); }
    int ChoisisOnglet(int widget) { return Choisis(int(modeles[widget].onglets.size())); }

    void Ajoute(int de)
    {
        int const numero = int(toutes.size());
        Onglet onglet{new QPlainTextEdit, u"Page %1"_s.arg(numero), numero, numero % 2 == 0};
        onglet.page->setPlainText(u"Texte %1"_s.arg(numero));
        onglet.page->moveCursor(QTextCursor::End);
        onglet.page->insertPlainText(u" suite"_s);
        toutes.append(onglet.page);
        DTabWidget & widget = *widgets[de];
        int index = Choisis(int(modeles[de].onglets.size()) + 2) - 1;
        if (Choisis(2) == 0) {
            index = widget.AjouteOnglet(onglet.page, onglet.titre);
        } else {
            widget.InsereOnglet(onglet.page, index, onglet.titre);
            index = Pile(widget).indexOf(onglet.page);
        }
        widget.MetsDataOnglet(index, onglet.donnee, kCle);
        if (onglet.icone)
            widget.MetsIconeOnglet(index, QIcon(u":/Images/fermer.svg"_s));
        modeles[de].Insere(index, onglet);
    }

    void Ferme(int de)
    {
        int const index = ChoisisOnglet(de);
        QPlainTextEdit * const page = modeles[de].Retire(index).page;
        switch (Choisis(3)) {
        case 0:
            delete page; // without a word to the widget
            break;
        case 1:
            widgets[de]->RetireOnglet(index);
            page->setParent(nullptr);
            retirees.append(page);
            break;
        default:
            widgets[de]->RetireOnglet(index);
            delete page;
        }
    }

    void Envoie(int de)
    {
        int const vers = (de + 1 + Choisis(kWidgets - 1)) % kWidgets;
        int const index = ChoisisOnglet(de);
        int const position = Choisis(int(modeles[vers].onglets.size()) + 1);
        if (Choisis(2) == 0)
            QVERIFY(widgets[de]->EnvoieOnglet(index, widgets[vers].get(), position));
        else
            Q_EMIT Barre(*widgets[de])
                .SignalAjouteOngletBarreExterne(index, &Barre(*widgets[vers]), position);
        Onglet const onglet = modeles[de].Retire(index);
        modeles[vers].Insere(position, onglet);
        ++envois;
    }

    void Deplace(int de)
    {
        int const depart = ChoisisOnglet(de);
        int const arrivee = ChoisisOnglet(de);
        Barre(*widgets[de]).moveTab(depart, arrivee);
        modeles[de].Deplace(depart, arrivee);
    }

    void MetsCourant(int de)
    {
        modeles[de].courant = ChoisisOnglet(de);
        widgets[de]->MetsIndexCourant(modeles[de].courant);
    }

    void Renomme(int de)
    {
        int const index = ChoisisOnglet(de);
        QString & titre = modeles[de].onglets[index].titre;
        titre += u'!';
        widgets[de]->MetsTexteOnglet(index, titre);
    }

    QRandomGenerator monHasard;
};

void Verifie(DTabWidget const & widget, Modele const & modele)
{
    QCOMPARE(widget.DonneTotalOnglet(), modele.onglets.size());
    QCOMPARE(Pile(widget).count(), modele.onglets.size());
    QCOMPARE(widget.DonneIndexCourant(), modele.courant);
    QCOMPARE(Pile(widget).currentIndex(), modele.courant);
    for (int i = 0; i < modele.onglets.size(); ++i) {
        Onglet const & onglet = modele.onglets.at(i);
        QCOMPARE(widget.DonneWidget(i), onglet.page);
        QCOMPARE(widget.DonneTitre(i), onglet.titre);
        QCOMPARE(Barre(widget).tabToolTip(i), onglet.titre);
        QCOMPARE(Barre(widget).accessibleTabName(i), onglet.titre);
        QCOMPARE(Barre(widget).DonneInfos(i).etiquetteTitre->DonneTexte(), onglet.titre);
        QCOMPARE(widget.DonneDataOnglet(i, kCle), QVariant(onglet.donnee));
        QCOMPARE(widget.DonneIconeOnglet(i).isNull(), !onglet.icone);
        QCOMPARE(onglet.page->toPlainText(), u"Texte %1 suite"_s.arg(onglet.donnee));
        QVERIFY(onglet.page->document()->isUndoAvailable());
        QCOMPARE(onglet.page->isHidden(), i != modele.courant);
        bool const selectionnay = Fermeture(widget, i)->property("selectionnay").toBool();
        QVERIFY(!selectionnay || i == modele.courant);
    }
    // Nothing else is left in the pile, nor in the bar once the deletions are done.
    QCOMPARE(Pile(widget).findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(),
             modele.onglets.size());
    EnvoieSuppressions();
    QCOMPARE(Barre(widget).findChildren<QToolButton *>(u"boutonFermeture"_s).size(),
             modele.onglets.size());
}

} // namespace

// Pages that travel at random between three widgets, beside a model of where each should be.
class tst_DTabWidgetHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void voyages_data();
    void voyages();
};

void tst_DTabWidgetHasard::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetHasard::voyages_data()
{
    QTest::addColumn<quint32>("graine");
    for (quint32 const graine : {1u, 20u, 300u})
        QTest::addRow("seed %u", graine) << graine;
}

void tst_DTabWidgetHasard::voyages()
{
    QFETCH(quint32, graine);
    QList<QPointer<QPlainTextEdit>> toutes;
    {
        Jeu jeu(graine);
        while (jeu.envois < kGestes) {
            jeu.Joue();
            for (int i = 0; i < kWidgets; ++i)
                Verifie(*jeu.widgets[i], jeu.modeles[i]);
            if (QTest::currentTestFailed())
                return;
        }
        for (auto const & page : std::as_const(jeu.retirees))
            QVERIFY(page);
        toutes = jeu.toutes;
        QVERIFY(toutes.size() > 100);
    }
    for (auto const & page : std::as_const(toutes))
        QVERIFY(!page);
}

QTEST_MAIN(tst_DTabWidgetHasard)
#include "tst_DTabWidgetHasard.moc"

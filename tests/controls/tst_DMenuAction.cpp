// tests/controls/tst_DMenuAction.cpp
#include "controls/DMenuAction.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QWidgetAction>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint kPosition(120, 90);

class MenuTemoin : public DMenuAction
{
public:
    using DMenuAction::DMenuAction;
    using DMenuAction::PreteGrille;
};

QMenu * PreteMenu(DMenuAction const & cadre)
{
    return qobject_cast<QMenu *>(cadre.parentWidget());
}

QWidgetAction * PreteAction(DMenuAction const & cadre)
{
    return qobject_cast<QWidgetAction *>(PreteMenu(cadre)->actions().value(0));
}

// Opens the menu, does something once it is open, and closes it.
template <typename Travail>
void PendantQuIlEstOuvert(DMenuAction & cadre, Travail const & travail)
{
    QPointer<QMenu> const menu = PreteMenu(cadre);
    QTimer::singleShot(0, menu, [&] {
        travail();
        if (menu)
            menu->hide();
    });
    cadre.OuvrirMenuALaPosition(kPosition);
}

} // namespace

class tst_DMenuAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void parent();
    void rangees();
    void rangeesIncompletes();
    void separateur();
    void separateurEnPremier();
    void visibiliteDUneRangee();
    void visibiliteDUnSeparateur();
    void visibiliteDeRien();
    void signalEtPosition();
    void tailleSuitLaRangee();
    void tailleSuitFermay();
    void tailleSuitUnTexte();
    void rouvert();
    void ouvertDeuxFois();
    void detruitParLeParent();
    void detruitSeul();
    void detruitParSonMenu();
    void detruitOuvert_data();
    void detruitOuvert();
    void tabulation();
    void tabulationSansCible();
    void echappement();
    void clicACote();
    void feuilleDeStyle();
};

void tst_DMenuAction::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DMenuAction::construction()
{
    MenuTemoin cadre;
    QMenu * const menu = PreteMenu(cadre);
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
    QVERIFY(PreteAction(cadre));
    QCOMPARE(PreteAction(cadre)->defaultWidget(), &cadre);
    QCOMPARE(cadre.layout(), cadre.PreteGrille());
    QCOMPARE(cadre.PreteGrille()->contentsMargins(), QMargins(15, 15, 15, 15));
    QCOMPARE(cadre.PreteGrille()->horizontalSpacing(), 7);
    QCOMPARE(cadre.PreteGrille()->verticalSpacing(), 7);
    QVERIFY(!menu->isVisible());
}

void tst_DMenuAction::parent()
{
    QWidget parent;
    auto * const cadre = new DMenuAction(&parent);
    QCOMPARE(PreteMenu(*cadre)->parentWidget(), &parent);
}

void tst_DMenuAction::rangees()
{
    MenuTemoin cadre;
    QGridLayout const & grille = *cadre.PreteGrille();
    for (int i = 0; i < 3; ++i) {
        auto * const label = new QLabel(u"Titre"_s);
        auto * const widget = new QLineEdit;
        cadre.AjouteWidget(label, widget);
        QCOMPARE(grille.itemAtPosition(i, 0)->widget(), label);
        QCOMPARE(grille.itemAtPosition(i, 0)->alignment(), Qt::AlignRight);
        QCOMPARE(grille.itemAtPosition(i, 1)->widget(), widget);
        QCOMPARE(grille.itemAtPosition(i, 1)->alignment(), Qt::Alignment());
        QCOMPARE(label->parentWidget(), &cadre);
        QCOMPARE(widget->parentWidget(), &cadre);
        QCOMPARE(grille.rowCount(), i + 1);
    }
    QCOMPARE(grille.columnCount(), 2);
}

void tst_DMenuAction::rangeesIncompletes()
{
    MenuTemoin cadre;
    QGridLayout const & grille = *cadre.PreteGrille();
    auto * const label = new QLabel(u"Titre"_s);
    auto * const widget = new QLineEdit;
    cadre.AjouteWidget(nullptr, nullptr);
    QCOMPARE(grille.count(), 0);
    cadre.AjouteWidget(label, nullptr);
    cadre.AjouteWidget(nullptr, nullptr);
    cadre.AjouteWidget(nullptr, widget);
    QCOMPARE(grille.count(), 2);
    QCOMPARE(grille.itemAtPosition(0, 0)->widget(), label);
    QCOMPARE(grille.itemAtPosition(0, 1), nullptr);
    QCOMPARE(grille.itemAtPosition(1, 0), nullptr);
    QCOMPARE(grille.itemAtPosition(1, 1)->widget(), widget);
    cadre.AfficherRangeeDuWidget(widget, false);
    QVERIFY(widget->isHidden());
    QVERIFY(!label->isHidden());
}

void tst_DMenuAction::separateur()
{
    MenuTemoin cadre;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    cadre.AjouteSeparateur();
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    auto * const separateur = cadre.findChild<QFrame *>(u"Separateur"_s);
    QVERIFY(separateur);
    QCOMPARE(separateur->frameShape(), QFrame::HLine);
    QCOMPARE(separateur->frameShadow(), QFrame::Sunken);
    QCOMPARE(separateur->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QGridLayout * const grille = cadre.PreteGrille();
    int rangee = 0;
    int colonne = 0;
    int rangees = 0;
    int colonnes = 0;
    grille->getItemPosition(grille->indexOf(separateur), &rangee, &colonne, &rangees, &colonnes);
    QCOMPARE(QRect(colonne, rangee, colonnes, rangees), QRect(0, 1, 2, 1));
    QVERIFY(grille->itemAtPosition(2, 1));
}

void tst_DMenuAction::separateurEnPremier()
{
    MenuTemoin cadre;
    cadre.AjouteSeparateur();
    cadre.AjouteSeparateur();
    QCOMPARE(cadre.PreteGrille()->rowCount(), 2);
    QCOMPARE(cadre.findChildren<QFrame *>(u"Separateur"_s).size(), 2);
}

void tst_DMenuAction::visibiliteDUneRangee()
{
    MenuTemoin cadre;
    QList<QWidget *> labels;
    QList<QWidget *> widgets;
    for (int i = 0; i < 3; ++i) {
        auto * const label = new QLabel(u"Titre"_s);
        widgets << new QLineEdit;
        labels << label;
        cadre.AjouteWidget(label, widgets.last());
    }
    auto const cachees = [&] {
        QList<int> rangees;
        for (int i = 0; i < 3; ++i)
            if (labels[i]->isHidden() && widgets[i]->isHidden())
                rangees << i;
            else if (labels[i]->isHidden() || widgets[i]->isHidden())
                rangees << -1;
        return rangees;
    };
    cadre.AfficherRangeeDuWidget(widgets[1], false);
    QCOMPARE(cachees(), QList<int>{1});
    cadre.AfficherRangeeDuWidget(widgets[1], false);
    QCOMPARE(cachees(), QList<int>{1});
    cadre.AfficherRangeeDuWidget(labels[2], false); // by its label as well
    QCOMPARE(cachees(), QList<int>({1, 2}));
    cadre.AfficherRangeeDuWidget(widgets[1], true);
    cadre.AfficherRangeeDuWidget(widgets[2], true);
    QCOMPARE(cachees(), QList<int>());
    PendantQuIlEstOuvert(cadre, [&] {
        for (QWidget const * const widget : widgets)
            QVERIFY(widget->isVisible());
    });
}

void tst_DMenuAction::visibiliteDUnSeparateur()
{
    MenuTemoin cadre;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    cadre.AjouteSeparateur();
    auto * const separateur = cadre.findChild<QFrame *>(u"Separateur"_s);
    cadre.AfficherRangeeDuWidget(separateur, false);
    QVERIFY(separateur->isHidden());
    QVERIFY(!cadre.findChild<QLineEdit *>()->isHidden());
    cadre.AfficherRangeeDuWidget(separateur, true);
    QVERIFY(!separateur->isHidden());
}

void tst_DMenuAction::visibiliteDeRien()
{
    MenuTemoin cadre;
    cadre.AfficherRangeeDuWidget(nullptr, false);
    auto * const widget = new QLineEdit;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    QLineEdit etranger(&cadre);
    cadre.AfficherRangeeDuWidget(nullptr, false);
    cadre.AfficherRangeeDuWidget(&etranger, false);
    QVERIFY(!widget->isHidden());
    QVERIFY(!etranger.isHidden());
}

void tst_DMenuAction::signalEtPosition()
{
    MenuTemoin cadre;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    QSignalSpy espion(&cadre, &DMenuAction::SignalOuvreMenu);
    bool ouvert = false;
    QPoint position;
    PendantQuIlEstOuvert(cadre, [&] {
        ouvert = cadre.isVisible();
        position = PreteMenu(cadre)->pos();
    });
    QVERIFY(ouvert);
    QCOMPARE(position, kPosition);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toPoint(), kPosition);
    QVERIFY(!PreteMenu(cadre)->isVisible()); // it has blocked until here

    ouvert = false;
    QTimer::singleShot(0, &cadre, [&] {
        ouvert = cadre.isVisible();
        PreteMenu(cadre)->hide();
    });
    Q_EMIT cadre.SignalOuvreMenu(kPosition); // by the signal alone
    QVERIFY(ouvert);
}

void tst_DMenuAction::tailleSuitLaRangee()
{
    MenuTemoin cadre;
    auto * const widget = new QWidget;
    widget->setFixedSize(300, 80);
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    PendantQuIlEstOuvert(cadre, [&] {
        QSize const avant = PreteMenu(cadre)->size();
        QVERIFY(avant.height() > 80);
        cadre.AfficherRangeeDuWidget(widget, false);
        QTRY_COMPARE(PreteMenu(cadre)->height(), avant.height() - 80 - 7);
        QVERIFY(PreteMenu(cadre)->width() < avant.width());
        QTRY_COMPARE(cadre.size(), cadre.sizeHint());
        cadre.AfficherRangeeDuWidget(widget, true);
        QTRY_COMPARE(PreteMenu(cadre)->size(), avant);
        QVERIFY(widget->isVisible());
        QCOMPARE(widget->size(), QSize(300, 80));
    });
}

void tst_DMenuAction::tailleSuitFermay()
{
    MenuTemoin cadre;
    auto * const widget = new QWidget;
    widget->setFixedSize(300, 80);
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    QList<int> hauteurs;
    for (bool const visible : {true, false, true}) {
        cadre.AfficherRangeeDuWidget(widget, visible);
        PendantQuIlEstOuvert(cadre, [&] { hauteurs << PreteMenu(cadre)->height(); });
    }
    QCOMPARE(hauteurs.at(1), hauteurs.at(0) - 80 - 7);
    QCOMPARE(hauteurs.at(2), hauteurs.at(0));
}

void tst_DMenuAction::tailleSuitUnTexte()
{
    MenuTemoin cadre;
    auto * const label = new QLabel(u"Titre"_s);
    cadre.AjouteWidget(label, new QLineEdit);
    PendantQuIlEstOuvert(cadre, [&] {
        int const avant = PreteMenu(cadre)->width();
        label->setMinimumWidth(label->width() + 100);
        QTRY_COMPARE(PreteMenu(cadre)->width(), avant + 100);
    });
}

void tst_DMenuAction::rouvert()
{
    MenuTemoin cadre;
    auto * const widget = new QLineEdit;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    int ouvertures = 0;
    for (int i = 0; i < 3; ++i)
        PendantQuIlEstOuvert(cadre, [&] { ouvertures += widget->isVisible(); });
    QCOMPARE(ouvertures, 3);
}

void tst_DMenuAction::ouvertDeuxFois()
{
    MenuTemoin cadre;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    bool revenu = false;
    QPoint position;
    PendantQuIlEstOuvert(cadre, [&] {
        cadre.OuvrirMenuALaPosition(QPoint(40, 50)); // does not block
        revenu = PreteMenu(cadre)->isVisible();
        position = PreteMenu(cadre)->pos();
    });
    QVERIFY(revenu);
    QCOMPARE(position, QPoint(40, 50));
    QVERIFY(!PreteMenu(cadre)->isVisible());
}

void tst_DMenuAction::detruitParLeParent()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<DMenuAction> const cadre = new DMenuAction(parent.get());
    QPointer<QMenu> const menu = PreteMenu(*cadre);
    QPointer<QAction> const action = PreteAction(*cadre);
    QPointer<QWidget> const widget = new QLineEdit;
    cadre->AjouteWidget(new QLabel(u"Titre"_s), qobject_cast<QLineEdit *>(widget));
    parent.reset();
    QVERIFY(!cadre);
    QVERIFY(!menu);
    QVERIFY(!action);
    QVERIFY(!widget);
}

void tst_DMenuAction::detruitSeul()
{
    QWidget parent;
    QPointer<DMenuAction> const cadre = new DMenuAction(&parent);
    QPointer<QMenu> const menu = PreteMenu(*cadre);
    QPointer<QAction> const action = PreteAction(*cadre);
    PendantQuIlEstOuvert(*cadre, [] {});
    delete cadre;
    QVERIFY(!menu);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!action);
}

void tst_DMenuAction::detruitParSonMenu()
{
    QPointer<DMenuAction> cadre = new DMenuAction;
    delete PreteMenu(*cadre);
    QVERIFY(!cadre);

    cadre = new DMenuAction;
    QPointer<QMenu> const menu = PreteMenu(*cadre);
    delete PreteAction(*cadre);
    QVERIFY(!cadre);
    QVERIFY(!menu);
}

void tst_DMenuAction::detruitOuvert_data()
{
    QTest::addColumn<QString>("quoi");
    QTest::newRow("the frame") << u"cadre"_s;
    QTest::newRow("the menu") << u"menu"_s;
    QTest::newRow("the parent") << u"parent"_s;
}

void tst_DMenuAction::detruitOuvert()
{
    QFETCH(QString, quoi);
    auto parent = std::make_unique<QWidget>();
    QPointer<DMenuAction> const cadre = new DMenuAction(parent.get());
    cadre->AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    QPointer<QMenu> const menu = PreteMenu(*cadre);
    bool ouvert = false;
    QTimer::singleShot(0, this, [&] {
        ouvert = menu->isVisible();
        if (quoi == "cadre"_L1)
            delete cadre;
        else if (quoi == "menu"_L1)
            delete menu;
        else
            parent.reset();
    });
    cadre->OuvrirMenuALaPosition(kPosition);
    QVERIFY(ouvert);
    QVERIFY(!cadre);
    QVERIFY(!menu);
}

void tst_DMenuAction::tabulation()
{
    MenuTemoin cadre;
    QList<QWidget *> const widgets = {new QLineEdit, new QSpinBox, new QComboBox,
                                      new QPushButton(u"Non"_s), new QPushButton(u"Oui"_s)};
    for (QWidget * const widget : widgets)
        cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    widgets[3]->setEnabled(false);
    qobject_cast<QComboBox *>(widgets[2])->setEditable(true);
    QList<QWidget *> chemin;
    PendantQuIlEstOuvert(cadre, [&] {
        auto const presse = [&](Qt::Key touche) {
            QWidget * const cible = PreteMenu(cadre)->focusWidget();
            QTest::keyClick(cible ? cible : PreteMenu(cadre), touche);
            chemin << PreteMenu(cadre)->focusWidget();
        };
        for (int i = 0; i < 5; ++i)
            presse(Qt::Key_Tab);
        presse(Qt::Key_Backtab);
        presse(Qt::Key_Backtab);
    });
    QCOMPARE(chemin, QList<QWidget *>({widgets[0], widgets[1], widgets[2], widgets[4], widgets[0],
                                       widgets[4], widgets[2]}));
}

void tst_DMenuAction::tabulationSansCible()
{
    MenuTemoin cadre;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLabel(u"valeur"_s));
    bool reste = false;
    PendantQuIlEstOuvert(cadre, [&] {
        QTest::keyClick(PreteMenu(cadre), Qt::Key_Tab);
        reste = PreteMenu(cadre)->isVisible();
    });
    QVERIFY(reste);
}

void tst_DMenuAction::echappement()
{
    MenuTemoin cadre;
    auto * const champ = new QLineEdit;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), champ);
    bool fermay = false;
    PendantQuIlEstOuvert(cadre, [&] {
        champ->setFocus();
        QTest::keyClick(champ, Qt::Key_Escape);
        fermay = !PreteMenu(cadre)->isVisible();
    });
    QVERIFY(fermay);
}

void tst_DMenuAction::clicACote()
{
    MenuTemoin cadre;
    auto * const label = new QLabel(u"Titre"_s);
    auto * const bouton = new QPushButton(u"Oui"_s);
    cadre.AjouteWidget(label, bouton);
    QSignalSpy espion(bouton, &QPushButton::clicked);
    bool reste = false;
    PendantQuIlEstOuvert(cadre, [&] {
        QTest::mouseMove(PreteMenu(cadre), QPoint(5, 5));
        QTest::mouseClick(label, Qt::LeftButton);
        QTest::mouseClick(&cadre, Qt::LeftButton, {}, QPoint(3, 3));
        QTest::mouseClick(bouton, Qt::LeftButton);
        reste = PreteMenu(cadre)->isVisible();
    });
    QVERIFY(reste);
    QCOMPARE(espion.count(), 1);
}

void tst_DMenuAction::feuilleDeStyle()
{
    MenuTemoin cadre;
    auto * const label = new QLabel(u"Titre"_s);
    cadre.AjouteWidget(label, new QLineEdit);
    QVERIFY(cadre.styleSheet().contains(u"QFrame{background-color:transparent;}"_s));
    QVERIFY(cadre.styleSheet().contains(u"QFrame>QLabel { color: gray; font-weight: bold; }"_s));
    cadre.AjouteSeparateur();
    auto * const separateur = cadre.findChild<QFrame *>(u"Separateur"_s);
    PendantQuIlEstOuvert(cadre, [&] {
        QImage const image = PreteMenu(cadre)->grab().toImage();
        QPoint const coin = separateur->mapTo(PreteMenu(cadre), QPoint(0, 0));
        QColor const fond = image.pixelColor(coin - QPoint(0, 3));
        QVERIFY(image.pixelColor(coin) != fond); // a line is seen
        QVERIFY(label->font().bold());
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(u"gray"_s));
    });
}

QTEST_MAIN(tst_DMenuAction)
#include "tst_DMenuAction.moc"

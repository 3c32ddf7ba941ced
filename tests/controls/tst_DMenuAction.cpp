// tests/controls/tst_DMenuAction.cpp
#include "controls/EssaisMenuAction.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace EssaisMenuAction;

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
    void tailleSuitLaRangee();
    void tailleSuitFermay();
    void tailleSuitUnTexte();
    void tailleAuxApprets();
    void resteDansLEcran();
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
        QCOMPARE(PreteMenu(cadre)->height(), avant.height() - 80 - 7);
        QVERIFY(PreteMenu(cadre)->width() < avant.width());
        QTRY_COMPARE(cadre.size(), cadre.sizeHint());
        cadre.AfficherRangeeDuWidget(widget, true);
        QCOMPARE(PreteMenu(cadre)->size(), avant);
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

// What it has become since is known before a place is looked for.
void tst_DMenuAction::tailleAuxApprets()
{
    MenuTemoin cadre;
    auto * const label = new QLabel(u"Titre"_s);
    cadre.AjouteWidget(label, new QLineEdit);
    QList<int> largeurs;
    connect(PreteMenu(cadre), &QMenu::aboutToShow, this,
            [&] { largeurs << PreteMenu(cadre)->sizeHint().width(); });
    PendantQuIlEstOuvert(cadre, [&] { label->setMinimumWidth(label->width() + 1); });
    PendantQuIlEstOuvert(cadre, [] {});
    label->setMinimumWidth(label->width() + 100);
    PendantQuIlEstOuvert(cadre, [] {});
    QCOMPARE(largeurs.at(2), largeurs.at(1) + 100);
}

void tst_DMenuAction::resteDansLEcran()
{
    MenuTemoin cadre;
    auto * const widget = new QWidget;
    widget->setFixedSize(300, 200);
    cadre.AjouteWidget(new QLabel(u"Titre"_s), new QLineEdit);
    cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    cadre.AfficherRangeeDuWidget(widget, false);
    QMenu & menu = *PreteMenu(cadre);
    QRect const ecran = cadre.screen()->availableGeometry();
    QTimer::singleShot(0, &cadre, [&] {
        int const avant = menu.height();
        cadre.AfficherRangeeDuWidget(widget, true);
        QTRY_COMPARE(menu.height(), avant + 200 + 7);
        QVERIFY(ecran.contains(menu.frameGeometry()));
        menu.hide();
    });
    cadre.OuvrirMenuALaPosition(ecran.bottomRight() - QPoint(300, 90));
}

void tst_DMenuAction::feuilleDeStyle()
{
    MenuTemoin cadre;
    auto * const label = new QLabel(u"Titre"_s);
    cadre.AjouteWidget(label, new QLineEdit);
    QCOMPARE(cadre.styleSheet(), u"QFrame{background-color:transparent;}"
                                 "QFrame>QLabel { color: gray; font-weight: bold; }"_s);
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

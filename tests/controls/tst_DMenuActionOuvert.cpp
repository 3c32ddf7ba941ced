// tests/controls/tst_DMenuActionOuvert.cpp
#include "controls/EssaisMenuAction.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace EssaisMenuAction;

class tst_DMenuActionOuvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void signalEtPosition();
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
};

void tst_DMenuActionOuvert::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DMenuActionOuvert::signalEtPosition()
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

void tst_DMenuActionOuvert::rouvert()
{
    MenuTemoin cadre;
    auto * const widget = new QLineEdit;
    cadre.AjouteWidget(new QLabel(u"Titre"_s), widget);
    int ouvertures = 0;
    for (int i = 0; i < 3; ++i)
        PendantQuIlEstOuvert(cadre, [&] { ouvertures += widget->isVisible(); });
    QCOMPARE(ouvertures, 3);
}

void tst_DMenuActionOuvert::ouvertDeuxFois()
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

void tst_DMenuActionOuvert::detruitParLeParent()
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

void tst_DMenuActionOuvert::detruitSeul()
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

void tst_DMenuActionOuvert::detruitParSonMenu()
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

void tst_DMenuActionOuvert::detruitOuvert_data()
{
    QTest::addColumn<QString>("quoi");
    QTest::newRow("the frame") << u"cadre"_s;
    QTest::newRow("the menu") << u"menu"_s;
    QTest::newRow("the parent") << u"parent"_s;
}

void tst_DMenuActionOuvert::detruitOuvert()
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

void tst_DMenuActionOuvert::tabulation()
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

void tst_DMenuActionOuvert::tabulationSansCible()
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

void tst_DMenuActionOuvert::echappement()
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

void tst_DMenuActionOuvert::clicACote()
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

QTEST_MAIN(tst_DMenuActionOuvert)
#include "tst_DMenuActionOuvert.moc"

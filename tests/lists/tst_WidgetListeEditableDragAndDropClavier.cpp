#include "lists/WidgetListeEditableDragAndDrop.h"

#include "lists/EssaisDragAndDrop.h"

#include <QWindow>
#include <QtTest>

#include <memory>

using namespace EssaisDragAndDrop;
using namespace EssaisVariantes;
using namespace Qt::StringLiterals;

// The keys that move rows, and the one that ends a drag.
class tst_WidgetListeEditableDragAndDropClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void echappement();
    void echappementDansUnEditeur();
    void toucheAlt_data();
    void toucheAlt();

private:
    std::unique_ptr<Liste> maListe;
};

void tst_WidgetListeEditableDragAndDropClavier::init()
{
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    maListe->Montre();
}

void tst_WidgetListeEditableDragAndDropClavier::cleanup()
{
    maListe.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The row has an empty first cell, which the end of an edit would take for an empty row.
void tst_WidgetListeEditableDragAndDropClavier::echappement()
{
    maListe->AjouteElement(Ligne({QString(), u"f2"_s}));
    maListe->Choisis({5});
    DTreeView & vue = *maListe->PreteVue();
    QWindow * const fenetre = maListe->windowHandle();
    QSignalSpy const fins(maListe.get(), &Liste::SignalEditionTerminay);

    QVERIFY(Glissement::Execute(vue, maListe->Milieu(5),
                                {[&] { Glissement::Deplace(vue, maListe->Bord(1, kDessus)); },
                                 [&] { QTest::keyPress(fenetre, Qt::Key_Escape); }}));
    QTest::keyRelease(fenetre, Qt::Key_Escape);
    Glissement::Lache(vue, maListe->Bord(1, kDessus));
    QCoreApplication::processEvents();

    QCOMPARE(maListe->DonneNbRangee(), 6);
    QCOMPARE(maListe->Textes().first(), u"a"_s);
    QCOMPARE(maListe->Choisies(), QList<int>{5});
    QCOMPARE(fins.count(), 0);
    QTest::keyClick(fenetre, Qt::Key_Escape); // this one is the list's
    QCOMPARE(fins.count(), 1);
}

void tst_WidgetListeEditableDragAndDropClavier::echappementDansUnEditeur()
{
    // A drag that ends away from the list, without a key.
    maListe->Choisis({0});
    QVERIFY(maListe->Glisse(0, QPoint(30, maListe->PreteVue()->viewport()->height() + 20)));
    maListe->PriseBoutonAjouter();
    QTRY_COMPARE(maListe->Editeurs().size(), 1);

    QTest::keyPress(maListe->Editeurs().first(), Qt::Key_Escape);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
    QCOMPARE(maListe->DonneNbRangee(), 6);
    QTest::keyRelease(maListe->PreteVue(), Qt::Key_Escape);

    QTRY_COMPARE(maListe->DonneNbRangee(), 5);
    QCOMPARE(maListe->Textes().join(QString()), u"abcde"_s);
}

void tst_WidgetListeEditableDragAndDropClavier::toucheAlt_data()
{
    QTest::addColumn<QList<int>>("choisies");
    QTest::addColumn<int>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<QString>("attendu");
    Qt::KeyboardModifiers const alt = Qt::AltModifier;
    QTest::newRow("up") << QList<int>{2} << int(Qt::Key_Up) << alt << u"acbde"_s;
    QTest::newRow("down") << QList<int>{2} << int(Qt::Key_Down) << alt << u"abdce"_s;
    QTest::newRow("the keypad") << QList<int>{2} << int(Qt::Key_Down) << (alt | Qt::KeypadModifier)
                                << u"abdce"_s;
    QTest::newRow("up from the top") << QList<int>{0} << int(Qt::Key_Up) << alt << u"abcde"_s;
    QTest::newRow("down from the end") << QList<int>{4} << int(Qt::Key_Down) << alt << u"abcde"_s;
    QTest::newRow("nothing selected") << QList<int>{} << int(Qt::Key_Down) << alt << u"abcde"_s;
    QTest::newRow("the first of several")
        << QList<int>{1, 3} << int(Qt::Key_Down) << alt << u"acbde"_s;
    QTest::newRow("without Alt") << QList<int>{2} << int(Qt::Key_Down) << Qt::KeyboardModifiers()
                                 << u"abcde"_s;
    QTest::newRow("with Shift too")
        << QList<int>{2} << int(Qt::Key_Down) << (alt | Qt::ShiftModifier) << u"abcde"_s;
    QTest::newRow("another key") << QList<int>{2} << int(Qt::Key_Right) << alt << u"abcde"_s;
}

void tst_WidgetListeEditableDragAndDropClavier::toucheAlt()
{
    QFETCH(QList<int>, choisies);
    QFETCH(int, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QFETCH(QString, attendu);
    maListe->Choisis(choisies);

    QTest::keyClick(maListe->PreteVue(), static_cast<Qt::Key>(touche), modificateurs);

    QCOMPARE(maListe->Textes().join(QString()), attendu);
}

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts"); // which leaves drags to Qt
    QApplication const application(nombre, arguments);
    tst_WidgetListeEditableDragAndDropClavier essai;
    return QTest::qExec(&essai, nombre, arguments);
}

#include "tst_WidgetListeEditableDragAndDropClavier.moc"

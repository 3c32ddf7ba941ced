// tests/editing/tst_DLineEditPalette.cpp
#include "editing/DLineEdit.h"

#include "editing/EssaisLineEdit.h"
#include "foundation/ThemesQt.h"

#include <QtTest>

#include <memory>

using namespace EssaisLineEdit;
using namespace Qt::StringLiterals;

class tst_DLineEditPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void erreurSeuleChangeLeTexte();
    void miseAJourSansEtat();
    void couleurDuTheme();
    void paletteDeLApplication_data();
    void paletteDeLApplication();
    void paletteDuParent();
    void paletteDeLaClasse();
    void paletteDuChampRemplacee();

private:
    QPalette maPalette;
};

void tst_DLineEditPalette::init()
{
    maPalette = QApplication::palette();
}

void tst_DLineEditPalette::cleanup()
{
    QApplication::setPalette(maPalette);
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLineEditPalette::erreurSeuleChangeLeTexte()
{
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    QPalette attendue = QApplication::palette(&champ);
    attendue.setColor(QPalette::Text, kRouge);
    QCOMPARE(champ.palette(), attendue);
    champ.MetsErreur(false);
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
}

void tst_DLineEditPalette::miseAJourSansEtat()
{
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    champ.setPalette(QPalette(Qt::green));
    champ.MetsAJourPalette();
    QVERIFY(EstRouge(champ));
    Envoie(champ, QEvent::HoverEnter);
    champ.setPalette(QPalette(Qt::green));
    champ.MetsAJourPalette();
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
}

void tst_DLineEditPalette::couleurDuTheme()
{
    ThemesQt::Instance()->AjouterVariable(u"couleurErreurLineEdit"_s, u"rgba(1,2,3,255)"_s);
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    QCOMPARE(champ.palette().color(QPalette::Text), QColor(1, 2, 3));
    // The colour is read when the field is made.
    ThemesQt::Instance()->AjouterVariable(u"couleurErreurLineEdit"_s, u"rgba(4,5,6,255)"_s);
    champ.MetsErreur(false);
    champ.MetsErreur(true);
    QCOMPARE(champ.palette().color(QPalette::Text), QColor(1, 2, 3));
}

void tst_DLineEditPalette::paletteDeLApplication_data()
{
    QTest::addColumn<bool>("fenetre");
    QTest::addColumn<bool>("erreur");
    QTest::newRow("a window, normal") << true << false;
    QTest::newRow("a window, in error") << true << true;
    QTest::newRow("a child, normal") << false << false;
    QTest::newRow("a child, in error") << false << true;
}

// From a dark palette, given role by role as applications do, to a light one.
void tst_DLineEditPalette::paletteDeLApplication()
{
    QFETCH(bool, fenetre);
    QFETCH(bool, erreur);
    QPalette sombre(Qt::black);
    for (auto const role : {QPalette::Window, QPalette::Base, QPalette::Button})
        sombre.setColor(role, QColor(30, 30, 30));
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        sombre.setColor(role, Qt::white);
    QApplication::setPalette(sombre);

    QWidget parent;
    std::unique_ptr<DLineEdit> const champ(new DLineEdit(fenetre ? nullptr : &parent));
    champ->MetsErreur(erreur);
    champ->MetsAJourPalette();
    QCOMPARE(champ->palette().color(QPalette::Base), QColor(30, 30, 30));

    QPalette clair(Qt::lightGray);
    clair.setColor(QPalette::Base, Qt::white);
    clair.setColor(QPalette::Text, Qt::black);
    QApplication::setPalette(clair);
    // Windows that have never been shown hear of it by a posted event.
    QTRY_COMPARE(champ->palette().color(QPalette::Base), QColor(Qt::white));
    QCOMPARE(champ->palette().color(QPalette::Text), erreur ? kRouge : QColor(Qt::black));
    champ->MetsErreur(!erreur);
    QCOMPARE(champ->palette().color(QPalette::Text), erreur ? QColor(Qt::black) : kRouge);
    QCOMPARE(champ->palette().color(QPalette::Base), QColor(Qt::white));
}

void tst_DLineEditPalette::paletteDuParent()
{
    QWidget parent;
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::darkBlue);
    palette.setColor(QPalette::Text, Qt::yellow);
    parent.setPalette(palette);
    auto * champ = new DLineEdit(&parent);
    champ->MetsErreur(true);
    QVERIFY(EstRouge(*champ));
    QCOMPARE(champ->palette().color(QPalette::Base), QColor(Qt::darkBlue));
    champ->MetsErreur(false);
    QCOMPARE(champ->palette().color(QPalette::Text), QColor(Qt::yellow));
}

void tst_DLineEditPalette::paletteDeLaClasse()
{
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::darkGreen);
    QApplication::setPalette(palette, "DLineEdit");
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    QVERIFY(EstRouge(champ));
    champ.MetsErreur(false);
    QCOMPARE(champ.palette().color(QPalette::Text), QColor(Qt::darkGreen));
}

void tst_DLineEditPalette::paletteDuChampRemplacee()
{
    DLineEdit champ(nullptr);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::blue);
    champ.setPalette(palette);
    QCOMPARE(champ.palette().color(QPalette::Text), QColor(Qt::blue));
    // Deliberate: the field's own palette belongs to its state.
    champ.MetsAJourPalette();
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
}

QTEST_MAIN(tst_DLineEditPalette)
#include "tst_DLineEditPalette.moc"

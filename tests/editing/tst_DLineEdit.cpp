// tests/editing/tst_DLineEdit.cpp
#include "editing/DLineEdit.h"

#include "editing/EssaisLineEdit.h"
#include "foundation/ThemesQt.h"

#include <QtTest>

#include <QVBoxLayout>

using namespace EssaisLineEdit;
using namespace Qt::StringLiterals;

namespace {

// Counts what reaches the field.
class ChampCompteur : public DLineEdit
{
public:
    using DLineEdit::DLineEdit;
    int evenements = 0;
    int palettes = 0;

protected:
    bool event(QEvent * evenement) override
    {
        ++evenements;
        return DLineEdit::event(evenement);
    }
    void changeEvent(QEvent * evenement) override
    {
        palettes += evenement->type() == QEvent::PaletteChange;
        DLineEdit::changeEvent(evenement);
    }
};

} // namespace

Q_DECLARE_METATYPE(QList<QEvent::Type>)

class tst_DLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void normalAuDepart();
    void erreurSansChangement();
    void proprieteErreur();
    void evenements_data();
    void evenements();
    void evenementsHorsErreur();
    void evenementsDUnAutre();
    void rienNEstConsommay();
    void vraiFocus();
    void vraiSurvol();
    void miseAJourRepetee();
    void changementDansUnChangement();
};

void tst_DLineEdit::cleanup()
{
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLineEdit::normalAuDepart()
{
    DLineEdit champ(nullptr);
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
    QVERIFY(!champ.property("erreur").isValid());
    champ.MetsAJourPalette();
    QCOMPARE(champ.palette(), QApplication::palette(&champ));
}

void tst_DLineEdit::erreurSansChangement()
{
    DLineEdit champ(nullptr);
    // What another has set stays when nothing is done.
    champ.setProperty("erreur", u"autre"_s);
    champ.MetsErreur(false);
    QCOMPARE(champ.property("erreur"), QVariant(u"autre"_s));
    champ.MetsErreur(true);
    QCOMPARE(champ.property("erreur"), QVariant(true));
    champ.setProperty("erreur", u"autre"_s);
    champ.MetsErreur(true);
    QCOMPARE(champ.property("erreur"), QVariant(u"autre"_s));
}

void tst_DLineEdit::proprieteErreur()
{
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    QCOMPARE(champ.property("erreur"), QVariant(true));
    champ.MetsErreur(false);
    QCOMPARE(champ.property("erreur"), QVariant(false));
}

void tst_DLineEdit::evenements_data()
{
    QTest::addColumn<QList<QEvent::Type>>("types");
    QTest::addColumn<bool>("rouge");
    auto ligne = [](char const * nom, QList<QEvent::Type> const & types, bool rouge) {
        QTest::newRow(nom) << types << rouge;
    };
    using E = QEvent;
    ligne("nothing happens", {}, true);
    ligne("the mouse comes", {E::HoverEnter}, false);
    ligne("the mouse comes and goes", {E::HoverEnter, E::HoverLeave}, true);
    ligne("the focus comes", {E::FocusIn}, false);
    ligne("the focus comes and goes", {E::FocusIn, E::FocusOut}, true);
    ligne("the focus goes under the mouse", {E::FocusIn, E::HoverEnter, E::FocusOut}, false);
    ligne("then the mouse goes too", {E::FocusIn, E::HoverEnter, E::FocusOut, E::HoverLeave}, true);
    ligne("the mouse comes twice and goes once", {E::HoverEnter, E::HoverEnter, E::HoverLeave},
          true);
    ligne("the mouse goes without coming", {E::HoverLeave}, true);
}

void tst_DLineEdit::evenements()
{
    QFETCH(QList<QEvent::Type>, types);
    QFETCH(bool, rouge);
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    for (QEvent::Type const type : types)
        Envoie(champ, type);
    QCOMPARE(EstRouge(champ), rouge);
}

void tst_DLineEdit::evenementsHorsErreur()
{
    DLineEdit champ(nullptr);
    for (QEvent::Type const type :
         {QEvent::HoverEnter, QEvent::FocusIn, QEvent::FocusOut, QEvent::HoverLeave}) {
        Envoie(champ, type);
        QCOMPARE(champ.palette(), QApplication::palette(&champ));
    }
    // Deliberate: an error that comes while the mouse is there already is seen at once.
    Envoie(champ, QEvent::HoverEnter);
    champ.MetsErreur(true);
    QVERIFY(EstRouge(champ));
    // The mouse still does not count when the focus goes.
    Envoie(champ, QEvent::FocusIn);
    Envoie(champ, QEvent::FocusOut);
    QVERIFY(EstRouge(champ));
    // The mouse goes when there is no error any more: the next one is seen again.
    Envoie(champ, QEvent::HoverEnter);
    QVERIFY(!EstRouge(champ));
    champ.MetsErreur(false);
    Envoie(champ, QEvent::HoverLeave);
    champ.MetsErreur(true);
    QVERIFY(EstRouge(champ));
}

void tst_DLineEdit::evenementsDUnAutre()
{
    DLineEdit champ(nullptr);
    champ.MetsErreur(true);
    QWidget autre;
    autre.installEventFilter(&champ);
    Envoie(autre, QEvent::HoverEnter);
    Envoie(autre, QEvent::FocusIn);
    QVERIFY(EstRouge(champ));
}

void tst_DLineEdit::rienNEstConsommay()
{
    ChampCompteur champ(nullptr);
    for (bool const erreur : {false, true}) {
        champ.MetsErreur(erreur);
        for (QEvent::Type const type :
             {QEvent::HoverEnter, QEvent::HoverLeave, QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent evenement(type);
            QVERIFY(!champ.eventFilter(&champ, &evenement));
            int const avant = champ.evenements;
            Envoie(champ, type);
            QVERIFY(champ.evenements > avant);
        }
    }
}

void tst_DLineEdit::vraiFocus()
{
    QWidget fenetre;
    auto * disposition = new QVBoxLayout(&fenetre);
    auto * champ = new DLineEdit(&fenetre);
    auto * autre = new QLineEdit(&fenetre);
    disposition->addWidget(champ);
    disposition->addWidget(autre);
    autre->setFocus();
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    QTRY_VERIFY(autre->hasFocus());
    champ->MetsErreur(true);
    QVERIFY(EstRouge(*champ));

    champ->setFocus();
    QVERIFY(!EstRouge(*champ));
    Envoie(*champ, QEvent::HoverEnter);
    Envoie(*champ, QEvent::HoverLeave); // the focus is still there
    QVERIFY(!EstRouge(*champ));
    champ->MetsAJourPalette();
    QVERIFY(!EstRouge(*champ));
    autre->setFocus();
    QVERIFY(EstRouge(*champ));

    // An error found while the user is in the field.
    champ->MetsErreur(false);
    champ->setFocus();
    champ->MetsErreur(true);
    QVERIFY(!EstRouge(*champ));
    autre->setFocus();
    QVERIFY(EstRouge(*champ));
}

void tst_DLineEdit::vraiSurvol()
{
    QWidget fenetre;
    fenetre.setGeometry(0, 0, 200, 100);
    auto * champ = new DLineEdit(&fenetre);
    champ->setGeometry(50, 50, 100, 30);
    champ->setFocusPolicy(Qt::ClickFocus);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    QTest::mouseMove(fenetre.windowHandle(), QPoint(5, 5));
    champ->MetsErreur(true);
    QVERIFY(EstRouge(*champ));
    QTest::mouseMove(fenetre.windowHandle(), QPoint(80, 60));
    QTRY_VERIFY(!EstRouge(*champ));
    QTest::mouseMove(fenetre.windowHandle(), QPoint(5, 5));
    QTRY_VERIFY(EstRouge(*champ));
}

void tst_DLineEdit::miseAJourRepetee()
{
    ChampCompteur champ(nullptr);
    champ.MetsErreur(true);
    champ.palettes = 0;
    for (int i = 0; i < 100; ++i)
        champ.MetsAJourPalette();
    QCOMPARE(champ.palettes, 0); // so that a polish costs no painting
}

void tst_DLineEdit::changementDansUnChangement()
{
    // An application that polishes whatever changes its palette.
    class ChampQuiPolit : public DLineEdit
    {
    public:
        using DLineEdit::DLineEdit;
        int profondeur = 0;
        int profondeurMax = 0;

    protected:
        void changeEvent(QEvent * evenement) override
        {
            DLineEdit::changeEvent(evenement);
            if (evenement->type() != QEvent::PaletteChange)
                return;
            profondeurMax = std::max(profondeurMax, ++profondeur);
            style()->unpolish(this);
            style()->polish(this);
            MetsAJourPalette();
            --profondeur;
        }
    };
    ChampQuiPolit champ(nullptr);
    champ.MetsErreur(true);
    QVERIFY(EstRouge(champ));
    champ.MetsErreur(false);
    QVERIFY(!EstRouge(champ));
    QCOMPARE(champ.profondeurMax, 1);
}

QTEST_MAIN(tst_DLineEdit)
#include "tst_DLineEdit.moc"

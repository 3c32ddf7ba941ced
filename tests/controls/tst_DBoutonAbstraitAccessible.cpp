// tests/controls/tst_DBoutonAbstraitAccessible.cpp
#include "controls/CaseEtrangere.h"
#include "controls/LectureBouton.h"
#include "outils/LecteurSimulay.h"

#include <QCheckBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace LectureBouton;

class tst_DBoutonAbstraitAccessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void role_data();
    void role();
    void nom_data();
    void nom();
    void nomParUnLibelleVoisin();
    void description();
    void unSeulControle_data();
    void unSeulControle();
    void etat_data();
    void etat();
    void etatEnfoncay_data();
    void etatEnfoncay();
    void etatAvecFocus_data();
    void etatAvecFocus();
    void classeDerivee();
    void autresBoutonsIntacts();
    void classeEtrangereDuMemeNom();
    void fabriqueReprise();
};

namespace {

class CaseDerivee : public DCheckBox
{
    Q_OBJECT

public:
    using DCheckBox::DCheckBox;
};

} // namespace

void tst_DBoutonAbstraitAccessible::initTestCase()
{
    LecteurSimulay::Installe();
}

void tst_DBoutonAbstraitAccessible::cleanup()
{
    LecteurSimulay::Oublie();
    DetruisAttente();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonAbstraitAccessible::role_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessible::role()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    for (QAccessibleInterface const * const lu : LesDeux(*controle)) {
        QVERIFY(lu->isValid());
        QCOMPARE(lu->role(), genre == kCase ? QAccessible::CheckBox : QAccessible::RadioButton);
    }
    QCOMPARE(Lu(*controle)->object(), controle.get());
    QCOMPARE(Lu(Indicateur(*controle))->object(), &Indicateur(*controle));
}

void tst_DBoutonAbstraitAccessible::nom_data()
{
    QTest::addColumn<eGenre>("genre");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("nomDonnay");
    QTest::addColumn<QString>("attendu");
    for (eGenre const genre : {kCase, kRadio}) {
        auto const ligne = [genre](char const * nom) -> QTestData & {
            return QTest::addRow("%s: %s", genre == kCase ? "check box" : "radio button", nom)
                   << genre;
        };
        ligne("plain") << u"Abc"_s << QString() << u"Abc"_s;
        ligne("mark-up is stripped") << u"<b>Lire</b> les <a href='x'>conditions</a>"_s << QString()
                                     << u"Lire les conditions"_s;
        ligne("entities") << u"a &amp; b &lt; c"_s << QString() << u"a & b < c"_s;
        ligne("one line") << u"<p>a</p><p>b<br>c</p>"_s << QString() << u"a b c"_s;
        ligne("picture beside text") << u"<img src='x.png'> Abc"_s << QString() << u"Abc"_s;
        ligne("picture alone") << u"<img src='x.png'>"_s << QString() << QString();
        ligne("given name wins") << u"Abc"_s << u"Autre"_s << u"Autre"_s;
        ligne("no text") << QString() << QString() << QString();
        ligne("no text but a name") << QString() << u"Autre"_s << u"Autre"_s;
    }
}

void tst_DBoutonAbstraitAccessible::nom()
{
    QFETCH(eGenre, genre);
    QFETCH(QString, texte);
    QFETCH(QString, nomDonnay);
    QFETCH(QString, attendu);
    QWidget parent; // the name of a window would be its title
    DBoutonAbstrait * const controle = Cree(genre, texte, &parent);
    controle->setAccessibleName(nomDonnay);
    for (QAccessibleInterface const * const lu : LesDeux(*controle))
        QCOMPARE(lu->text(QAccessible::Name), attendu);
}

void tst_DBoutonAbstraitAccessible::nomParUnLibelleVoisin()
{
    QWidget parent;
    QLabel voisin(u"&Voisin"_s, &parent);
    DCheckBox const controle(QString(), &parent);
    voisin.setBuddy(const_cast<DCheckBox *>(&controle));
    QList<QPair<QAccessibleInterface *, QAccessible::Relation>> const relations{
        {Lu(voisin), QAccessible::Label}};
    for (QAccessibleInterface const * const lu : LesDeux(controle)) {
        QCOMPARE(lu->text(QAccessible::Name), u"Voisin"_s);
        QCOMPARE(lu->relations(QAccessible::Label), relations);
        QCOMPARE(lu->relations(), relations);
    }
}

void tst_DBoutonAbstraitAccessible::description()
{
    DCheckBox controle(u"abc"_s);
    controle.setToolTip(u"Infobulle"_s);
    for (QAccessibleInterface const * const lu : LesDeux(controle))
        QCOMPARE(lu->text(QAccessible::Description), u"Infobulle"_s);
}

void tst_DBoutonAbstraitAccessible::unSeulControle_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessible::unSeulControle()
{
    QFETCH(eGenre, genre);
    QWidget parent;
    DBoutonAbstrait * const controle = Cree(genre, u"abc"_s, &parent);
    parent.show();
    QAccessibleInterface * const lu = Lu(*controle);
    QAccessibleInterface * const indicateur = Lu(Indicateur(*controle));
    QCOMPARE(lu->childCount(), 0);
    QCOMPARE(lu->child(0), nullptr);
    QCOMPARE(lu->indexOfChild(indicateur), -1);
    QPoint const milieu = lu->rect().center();
    QCOMPARE(lu->childAt(milieu.x(), milieu.y()), nullptr);

    QCOMPARE(indicateur->parent(), Lu(parent)); // no check box within a check box
    QCOMPARE(indicateur->childCount(), 0);
    QCOMPARE(lu->parent(), Lu(parent));
    QCOMPARE(Lu(parent)->childCount(), 1);
    QCOMPARE(Lu(parent)->child(0), lu);
    QCOMPARE(lu->rect().size(), controle->size());
}

void tst_DBoutonAbstraitAccessible::etat_data()
{
    QTest::addColumn<eGenre>("genre");
    QTest::addColumn<bool>("cochay");
    QTest::addColumn<QString>("desactivay");
    struct
    {
        char const * nom;
        bool cochay;
        QString desactivay;
    } const lignes[] = {
        {"unchecked", false, {}},      {"checked", true, {}},
        {"disabled", true, u"lui"_s},  {"disabled by its parent", false, u"parent"_s},
        {"frozen", true, u"valeur"_s},
    };
    for (auto const & ligne : lignes) {
        QTest::addRow("check box: %s", ligne.nom) << kCase << ligne.cochay << ligne.desactivay;
        if (ligne.desactivay != "valeur"_L1)
            QTest::addRow("radio button: %s", ligne.nom)
                << kRadio << ligne.cochay << ligne.desactivay;
    }
}

void tst_DBoutonAbstraitAccessible::etat()
{
    QFETCH(eGenre, genre);
    QFETCH(bool, cochay);
    QFETCH(QString, desactivay);
    QWidget parent;
    DBoutonAbstrait * const controle = Cree(genre, u"abc"_s, &parent, cochay);
    if (desactivay == "lui"_L1)
        controle->setEnabled(false);
    else if (desactivay == "parent"_L1)
        parent.setEnabled(false);
    else if (desactivay == "valeur"_L1)
        qobject_cast<DCheckBox *>(controle)->MetsUtilisateurPeutChangerValeur(false);
    parent.show();
    for (QAccessibleInterface const * const lu : LesDeux(*controle)) {
        QVERIFY(lu->state().checkable);
        QCOMPARE(bool(lu->state().checked), cochay);
        QCOMPARE(bool(lu->state().disabled), !desactivay.isEmpty());
        QCOMPARE(bool(lu->state().focusable), desactivay != "valeur"_L1);
        QVERIFY(!lu->state().checkStateMixed);
        QVERIFY(!lu->state().pressed);
        QVERIFY(!lu->state().focused);
        QVERIFY(!lu->state().invisible);
    }
    controle->MetsCochay(!cochay);
    for (QAccessibleInterface const * const lu : LesDeux(*controle))
        QCOMPARE(bool(lu->state().checked), !cochay);
    parent.hide();
    for (QAccessibleInterface const * const lu : LesDeux(*controle))
        QVERIFY(lu->state().invisible);
}

void tst_DBoutonAbstraitAccessible::etatEnfoncay_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessible::etatEnfoncay()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    QTest::keyPress(&Indicateur(*controle), Qt::Key_Space);
    for (QAccessibleInterface const * const lu : LesDeux(*controle))
        QVERIFY(lu->state().pressed);
    QTest::keyRelease(&Indicateur(*controle), Qt::Key_Space);
    for (QAccessibleInterface const * const lu : LesDeux(*controle))
        QVERIFY(!lu->state().pressed);
}

void tst_DBoutonAbstraitAccessible::etatAvecFocus_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessible::etatAvecFocus()
{
    QFETCH(eGenre, genre);
    QWidget fenetre;
    DBoutonAbstrait * const controle = Cree(genre, u"abc"_s, &fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    controle->clearFocus();
    LecteurSimulay::Oublie();
    controle->setFocus();
    for (QAccessibleInterface const * const lu : LesDeux(*controle))
        QVERIFY(lu->state().focused);
    QCOMPARE(Lu(*controle)->focusChild(), Lu(*controle));
    // The reader is sent to the indicator, which reads like the control.
    QList<LecteurSimulay::Annonce> const annonces = LecteurSimulay::Annonces();
    QVERIFY(std::any_of(annonces.begin(), annonces.end(), [&](auto const & annonce) {
        return annonce.nature == QAccessible::Focus && annonce.objet == &Indicateur(*controle);
    }));
}

void tst_DBoutonAbstraitAccessible::classeDerivee()
{
    CaseDerivee const controle(u"<b>abc</b>"_s);
    QCOMPARE(Lu(controle)->role(), QAccessible::CheckBox);
    QCOMPARE(Lu(controle)->text(QAccessible::Name), u"abc"_s);
    QCOMPARE(Lu(controle)->childCount(), 0);
}

void tst_DBoutonAbstraitAccessible::autresBoutonsIntacts()
{
    DCheckBox const controle(u"abc"_s);
    QCheckBox const caseDeQt(u"&Case"_s);
    QRadioButton const radioDeQt(u"Radio"_s);
    QCOMPARE(Lu(caseDeQt)->text(QAccessible::Name), u"Case"_s);
    QCOMPARE(Lu(caseDeQt)->role(), QAccessible::CheckBox);
    QCOMPARE(Lu(radioDeQt)->text(QAccessible::Name), u"Radio"_s);
}

void tst_DBoutonAbstraitAccessible::classeEtrangereDuMemeNom()
{
    DCheckBox const controle(u"abc"_s); // so that the library is asked
    QWidget fenetre;
    std::unique_ptr<QCheckBox> const seule = CaseEtrangere::Cree(u"Seule"_s);
    QCheckBox * const placee = CaseEtrangere::Cree(u"Placée"_s).release();
    placee->setParent(&fenetre);
    QCOMPARE(seule->metaObject()->className(), "CheckBoxHover");
    // Qt's own interface, which knows how to describe the text of the button.
    QCOMPARE(Lu(*seule)->text(QAccessible::Name), u"Seule"_s);
    QCOMPARE(Lu(*placee)->text(QAccessible::Name), u"Placée"_s);
}

void tst_DBoutonAbstraitAccessible::fabriqueReprise()
{
    for (int tour = 0; tour < 2; ++tour) {
        DCheckBox const premiere(u"a"_s);
        {
            DRadioButton const seconde(u"b"_s);
            QCOMPARE(Lu(seconde)->role(), QAccessible::RadioButton);
        }
        QCOMPARE(Lu(premiere)->role(), QAccessible::CheckBox);
    }
}

QTEST_MAIN(tst_DBoutonAbstraitAccessible)
#include "tst_DBoutonAbstraitAccessible.moc"

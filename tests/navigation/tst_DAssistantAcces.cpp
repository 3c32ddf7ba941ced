// tests/navigation/tst_DAssistantAcces.cpp
#include "navigation/EssaisAssistant.h"
#include "outils/LecteurSimulay.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

namespace {

QLineEdit * AjouteChamp(QWidget * etape)
{
    if (!etape->layout())
        new QVBoxLayout(etape);
    auto * const champ = new QLineEdit;
    etape->layout()->addWidget(champ);
    return champ;
}

/// Where Tab leads from the list, round to the list.
QList<QWidget *> Tour(Banc & banc, Qt::Key touche = Qt::Key_Tab)
{
    banc.liste->setFocus();
    QList<QWidget *> tour;
    do {
        tour.append(QApplication::focusWidget());
        QTest::keyClick(tour.last(), touche);
    } while (tour.size() < 20 && QApplication::focusWidget() != banc.liste);
    return tour;
}

QString Nom(QWidget * widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QPalette Sombre()
{
    QPalette palette(QColor(40, 42, 46));
    palette.setColor(QPalette::WindowText, QColor(230, 230, 230));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(150, 150, 150));
    return palette;
}

} // namespace

class tst_DAssistantAcces : public QObject
{
    Q_OBJECT

public:
    static void initMain() { LecteurSimulay::Installe(); }

private Q_SLOTS:
    void cleanup();
    void premierFocus();
    void ordreAvantLAffichage();
    void ordreDuFocus();
    void ordreDesDerniers();
    void champNay();
    void etapeAjoutee();
    void focusApresSuivant();
    void nomDeLaListe();
    void nomsDesRangees();
    void nomDeLaFenetre();
    void nomsDesBoutons();
    void paletteSombre();
    void paletteQuiChange();
    void paletteDeLHote();
    void couleurDeLHoteGarday();
};

void tst_DAssistantAcces::cleanup()
{
    QApplication::setPalette(QPalette());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantAcces::premierFocus()
{
    Banc banc(2);
    QVERIFY(banc.Active());
    QTRY_COMPARE(QApplication::focusWidget(), banc.liste);
}

void tst_DAssistantAcces::ordreAvantLAffichage()
{
    Banc banc(0, false);
    auto * const etape = new EtapeTemoin(banc.journal, u"0"_s);
    QWidget * const champ = AjouteChamp(etape);
    banc.assistant->AjouteEtape(etape, false);
    QList<QWidget *> chaine;
    for (QWidget * w = banc.liste; !chaine.contains(w); w = w->nextInFocusChain()) {
        if (w->focusPolicy() != Qt::NoFocus)
            chaine.append(w);
    }
    QCOMPARE(chaine, QList<QWidget *>({banc.liste, champ, banc.annuler, banc.precedent,
                                       banc.suivant, banc.termine}));
}

void tst_DAssistantAcces::ordreDuFocus()
{
    Banc banc(0, false);
    QList<QList<QWidget *>> champs;
    for (int i = 0; i < 3; ++i) {
        auto * const etape = new EtapeTemoin(banc.journal, QString::number(i));
        QWidget * const premier = AjouteChamp(etape);
        champs.append({premier, AjouteChamp(etape)});
        banc.etapes.append(etape);
        banc.assistant->AjouteEtape(etape, false);
    }
    banc.Montre();
    QVERIFY(banc.Active());
    for (int i = 0; i < 3; ++i) {
        banc.ActiveTout();
        QList<QWidget *> attendu{banc.liste};
        attendu << champs.at(i) << banc.annuler << banc.precedent << banc.suivant << banc.termine;
        QCOMPARE(Tour(banc), attendu);
        std::reverse(attendu.begin() + 1, attendu.end());
        QCOMPARE(Tour(banc, Qt::Key_Backtab), attendu);
        QCOMPARE(banc.assistant->PriseBoutonSuivant(), i < 2);
    }
}

// A compound field is the last of the step.
void tst_DAssistantAcces::ordreDesDerniers()
{
    Banc banc(0, false);
    auto * const etape = new EtapeTemoin(banc.journal, u"0"_s);
    QWidget * const champ = AjouteChamp(etape);
    auto * const nombre = new QSpinBox;
    etape->layout()->addWidget(nombre);
    etape->layout()->addWidget(new QLabel(u"texte"_s));
    banc.assistant->AjouteEtape(etape, false);
    banc.Montre();
    QVERIFY(banc.Active());
    QCOMPARE(Tour(banc), QList<QWidget *>({banc.liste, champ, nombre, banc.annuler}));
}

void tst_DAssistantAcces::champNay()
{
    Banc banc(2, false);
    QWidget * champ = nullptr;
    banc.etapes.at(1)->enEntrant = [&] { champ = AjouteChamp(banc.etapes.at(1)); };
    banc.Montre();
    QVERIFY(banc.Active());
    QVERIFY(banc.Avance(1));
    QTRY_VERIFY(champ->isVisible());
    QCOMPARE(Tour(banc), QList<QWidget *>({banc.liste, champ, banc.annuler, banc.precedent}));
}

void tst_DAssistantAcces::etapeAjoutee()
{
    Banc banc(1);
    QVERIFY(banc.Active());
    QWidget * const champ = AjouteChamp(banc.Ajoute());
    QVERIFY(banc.Avance(1));
    QCOMPARE(Tour(banc), QList<QWidget *>({banc.liste, champ, banc.annuler, banc.precedent}));
}

// Every move disables the button that made it; the keyboard stays in the window.
void tst_DAssistantAcces::focusApresSuivant()
{
    Banc banc(3);
    QVERIFY(banc.Active());
    banc.assistant->ActiveBoutonSuivant(true);
    banc.suivant->setFocus();
    QTest::keyClick(banc.suivant, Qt::Key_Space);
    QCOMPARE(banc.Rangee(), 1);
    QVERIFY(QApplication::focusWidget());
    QVERIFY(QApplication::focusWidget()->isEnabled());
    QCOMPARE(QApplication::focusWidget()->window(), banc.assistant);
}

void tst_DAssistantAcces::nomDeLaListe()
{
    Banc banc(5);
    QCOMPARE(Nom(banc.liste), u"Étape 1 de 5"_s);
    QVERIFY(banc.Avance(3));
    QCOMPARE(Nom(banc.liste), u"Étape 4 de 5"_s);
    banc.Clique(1);
    QCOMPARE(Nom(banc.liste), u"Étape 2 de 5"_s);
    banc.Ajoute();
    QCOMPARE(Nom(banc.liste), u"Étape 2 de 6"_s);
    delete banc.etapes.at(5);
    QCOMPARE(Nom(banc.liste), u"Étape 2 de 5"_s);
}

void tst_DAssistantAcces::nomsDesRangees()
{
    Banc banc(3);
    QVERIFY(banc.Avance(1));
    QAccessibleInterface * const liste = QAccessible::queryAccessibleInterface(banc.liste);
    QCOMPARE(liste->childCount(), 3);
    for (int const i : {0, 1, 2}) {
        QAccessibleInterface * const rangee = liste->child(i);
        QCOMPARE(rangee->text(QAccessible::Name), u"%1. Liste %2"_s.arg(i + 1).arg(i));
        QCOMPARE(bool(rangee->state().selected), i == 1);
        QCOMPARE(bool(rangee->state().focused), i == 1);
        QCOMPARE(bool(rangee->state().selectable), i < 2); // a step not reached
    }
}

void tst_DAssistantAcces::nomDeLaFenetre()
{
    Banc banc(3);
    auto const nomsChanges = [&banc] {
        QList<LecteurSimulay::Annonce> const annonces = LecteurSimulay::Annonces();
        return std::count_if(annonces.begin(), annonces.end(), [&banc](auto const & annonce) {
            return annonce.objet == banc.assistant && annonce.nature == QAccessible::NameChanged;
        });
    };
    QAccessible::setActive(true);
    LecteurSimulay::Oublie();
    QVERIFY(banc.Avance(1));
    QCOMPARE(nomsChanges(), 1);
    QCOMPARE(Nom(banc.assistant), u"Titre 1"_s);
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(nomsChanges(), 2);
    QCOMPARE(Nom(banc.assistant), u"Titre 0"_s);
}

void tst_DAssistantAcces::nomsDesBoutons()
{
    Banc banc(1);
    QCOMPARE(Nom(banc.annuler), u"Annuler"_s);
    QCOMPARE(Nom(banc.precedent), u"< Précédent"_s);
    QCOMPARE(Nom(banc.suivant), u"Suivant >"_s);
    QCOMPARE(Nom(banc.termine), u"Terminer"_s);
}

void tst_DAssistantAcces::paletteSombre()
{
    QPalette const claire = QApplication::palette();
    {
        Banc banc(1);
        QLabel texte(u"texte"_s, banc.etapes.at(0));
        // The colour of a light application is left alone.
        QCOMPARE(texte.palette().color(QPalette::WindowText),
                 claire.color(QPalette::Active, QPalette::WindowText));
    }
    QApplication::setPalette(Sombre());
    Banc banc(1);
    QLabel texte(u"texte"_s, banc.etapes.at(0));
    QLineEdit champ(banc.etapes.at(0));
    QCOMPARE(banc.assistant->palette().color(QPalette::Window), QColor(Qt::white));
    QCOMPARE(texte.palette().color(QPalette::Window), QColor(Qt::white));
    for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QVERIFY(texte.palette().color(groupe, QPalette::WindowText).lightness() <= 128);
    QVERIFY(texte.palette().color(QPalette::Disabled, QPalette::WindowText) !=
            texte.palette().color(QPalette::Active, QPalette::WindowText));
    // What is drawn on the colours of the application keeps them.
    QCOMPARE(champ.palette().color(QPalette::Text), Sombre().color(QPalette::Text));
    QCOMPARE(banc.annuler->palette().color(QPalette::ButtonText),
             Sombre().color(QPalette::ButtonText));
}

void tst_DAssistantAcces::paletteQuiChange()
{
    Banc banc(1);
    QLabel texte(u"texte"_s, banc.etapes.at(0));
    QColor const claire = texte.palette().color(QPalette::WindowText);
    for (int fois = 0; fois < 2; ++fois) {
        QApplication::setPalette(Sombre());
        QTRY_VERIFY(banc.assistant->palette().color(QPalette::Base).lightness() < 128);
        QVERIFY(texte.palette().color(QPalette::WindowText).lightness() < 128);
        QCOMPARE(banc.assistant->palette().color(QPalette::Window), QColor(Qt::white));
        QApplication::setPalette(QPalette());
        QTRY_VERIFY(banc.assistant->palette().color(QPalette::Base).lightness() > 128);
        QCOMPARE(texte.palette().color(QPalette::WindowText), claire);
    }
}

void tst_DAssistantAcces::paletteDeLHote()
{
    Banc banc(1);
    QPalette palette = banc.assistant->palette();
    palette.setColor(QPalette::WindowText, QColor(0, 0, 120));
    banc.assistant->setPalette(palette);
    QCOMPARE(banc.assistant->palette().color(QPalette::WindowText), QColor(0, 0, 120));
    palette.setColor(QPalette::Window, QColor(20, 20, 20));
    palette.setColor(QPalette::WindowText, QColor(250, 250, 250));
    banc.assistant->setPalette(palette);
    QCOMPARE(banc.assistant->palette().color(QPalette::WindowText), QColor(250, 250, 250));
}

// A colour that the host has set stays its own when the application's change.
void tst_DAssistantAcces::couleurDeLHoteGarday()
{
    auto const colore = [](Banc & banc, QColor const & couleur) {
        QPalette palette = banc.assistant->palette();
        palette.setColor(QPalette::WindowText, couleur);
        banc.assistant->setPalette(palette);
    };
    QPalette bleue;
    bleue.setColor(QPalette::WindowText, QColor(0, 0, 90));
    {
        QApplication::setPalette(bleue);
        Banc banc(1);
        colore(banc, Qt::black);
        QCOMPARE(banc.assistant->palette().color(QPalette::WindowText), QColor(Qt::black));
    }
    QApplication::setPalette(Sombre());
    Banc banc(1);
    colore(banc, QColor(0, 80, 0));
    QApplication::setPalette(bleue);
    QTRY_VERIFY(banc.assistant->palette().color(QPalette::Base).lightness() > 128);
    QCOMPARE(banc.assistant->palette().color(QPalette::WindowText), QColor(0, 80, 0));
}

QTEST_MAIN(tst_DAssistantAcces)
#include "tst_DAssistantAcces.moc"

// tests/editing/tst_DComboJetonableAcces.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"
#include "noyau/Traductions.h"
#include "outils/LecteurSimulay.h"

#include <QAccessible>
#include <QtTest>

#include <memory>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

class tst_DComboJetonableAcces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { LecteurSimulay::Installe(); }
    void init();
    void cleanup();
    void rolesEtEtats();
    void nom();
    void valeur();
    void texteDuJeton();
    void lettresDuJetonEnGrand();
    void texteLibre();
    void description();
    void motDePasse();
    void changementsParLeLecteur();
    void enfants();
    void actions();
    void actionVider();
    void changementsAnnonces();
    void interfacesSansObjet();

private:
    QAccessibleInterface & Interface() const
    {
        return *QAccessible::queryAccessibleInterface(monCombo.get());
    }
    QAccessibleInterface & InterfaceDuChamp() const
    {
        return *QAccessible::queryAccessibleInterface(monCombo->lineEdit());
    }

    std::unique_ptr<DComboJetonable> monCombo;
};

void tst_DComboJetonableAcces::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    monCombo.reset(CreeSansIcones());
}

void tst_DComboJetonableAcces::cleanup()
{
    monCombo.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboJetonableAcces::rolesEtEtats()
{
    QCOMPARE(Interface().role(), QAccessible::ComboBox);
    QVERIFY(Interface().state().hasPopup);
    QVERIFY(Interface().state().editable);
    QVERIFY(!Interface().state().expandable); // no list of its own
    QCOMPARE(InterfaceDuChamp().role(), QAccessible::EditableText);
    QVERIFY(InterfaceDuChamp().state().editable);
    QVERIFY(!InterfaceDuChamp().state().readOnly);
    QVERIFY(InterfaceDuChamp().state().selectableText);

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QVERIFY(!InterfaceDuChamp().state().selectableText);
    monCombo->lineEdit()->setReadOnly(true);
    QVERIFY(InterfaceDuChamp().state().readOnly);
}

void tst_DComboJetonableAcces::nom()
{
    monCombo->setAccessibleName(u"Mot cherché"_s);
    QCOMPARE(Interface().text(QAccessible::Name), u"Mot cherché"_s);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QCOMPARE(Interface().text(QAccessible::Name), u"Mot cherché"_s);
}

void tst_DComboJetonableAcces::valeur()
{
    for (QAccessibleInterface * const interface : {&Interface(), &InterfaceDuChamp()}) {
        monCombo->setEditText(u"texte"_s);
        QCOMPARE(interface->text(QAccessible::Value), u"texte"_s);
        monCombo->PrendsTexteJeton(u"un\njeton"_s, {});
        QCOMPARE(interface->text(QAccessible::Value), u"un jeton"_s);
        monCombo->DesactiveJeton();
        QCOMPARE(interface->text(QAccessible::Value), QString());
    }
}

void tst_DComboJetonableAcces::texteDuJeton()
{
    monCombo->PrendsTexteJeton(u"nom commun"_s, {});
    QAccessibleTextInterface * const texte = InterfaceDuChamp().textInterface();
    QVERIFY(texte);

    QCOMPARE(texte->characterCount(), 10);
    QCOMPARE(texte->text(0, 3), u"nom"_s);
    QCOMPARE(texte->text(3, 3), QString());
    int debut = -1;
    int fin = -1;
    QCOMPARE(texte->textAtOffset(5, QAccessible::WordBoundary, &debut, &fin), u"commun"_s);
    QCOMPARE(debut, 4);
    QCOMPARE(fin, 10);
    QCOMPARE(texte->cursorPosition(), 0);
    QCOMPARE(texte->selectionCount(), 0);
    texte->addSelection(0, 3);
    QCOMPARE(texte->selectionCount(), 0);
    QVERIFY(!texte->characterRect(0).isEmpty());
    QVERIFY(texte->characterRect(4).left() > texte->characterRect(3).left());
    QVERIFY(texte->characterRect(10).isEmpty());
}

void tst_DComboJetonableAcces::lettresDuJetonEnGrand()
{
    QFont police = monCombo->font();
    police.setPixelSize(30);
    monCombo->PrendsPoliceJeton(police);
    monCombo->PrendsTexteJeton(u"mmmm"_s, {});
    QAccessibleTextInterface * const texte = InterfaceDuChamp().textInterface();
    QFontMetrics const mesures(police);
    QCOMPARE(texte->characterRect(3).left() - texte->characterRect(0).left(),
             mesures.horizontalAdvance(u"mmm"_s));
    QCOMPARE(texte->characterRect(0).width(), mesures.horizontalAdvance(u'm'));
    QVERIFY(texte->characterRect(0).height() >= mesures.ascent());
}

void tst_DComboJetonableAcces::texteLibre()
{
    monCombo->setEditText(u"texte libre"_s);
    QAccessibleTextInterface * const texte = InterfaceDuChamp().textInterface();

    texte->setCursorPosition(4);
    QCOMPARE(monCombo->lineEdit()->cursorPosition(), 4);
    QCOMPARE(texte->cursorPosition(), 4);
    texte->setSelection(0, 6, 11);
    QCOMPARE(monCombo->lineEdit()->selectedText(), u"libre"_s);
    int debut = -1;
    int fin = -1;
    texte->selection(0, &debut, &fin);
    QCOMPARE(debut, 6);
    QCOMPARE(fin, 11);
    texte->selection(1, &debut, &fin);
    QCOMPARE(fin, 0);
    texte->removeSelection(0);
    QCOMPARE(texte->selectionCount(), 0);
    texte->scrollToSubstring(2, 5);
    QCOMPARE(texte->cursorPosition(), 2);
    QCOMPARE(texte->attributes(3, &debut, &fin), QString());
    QRect const lettre = texte->characterRect(3);
    QCOMPARE(texte->offsetAtPoint(QPoint(lettre.left() + 1, lettre.center().y())), 3);
}

void tst_DComboJetonableAcces::description()
{
    QCOMPARE(InterfaceDuChamp().text(QAccessible::Description), QString());
    monCombo->PrendsTextePlaceHolder(u"Un mot"_s);
    QCOMPARE(InterfaceDuChamp().text(QAccessible::Description), u"Un mot"_s);
    monCombo->PrendsTexteJeton(u"jeton"_s, u"Nom commun"_s);
    // As it is read, without the tags of the tool tip; the combo box has the focus.
    QCOMPARE(InterfaceDuChamp().text(QAccessible::Description), u"Nom commun"_s);
    QCOMPARE(Interface().text(QAccessible::Description), u"Nom commun"_s);
    monCombo->setAccessibleDescription(u"de l’hôte"_s);
    QCOMPARE(Interface().text(QAccessible::Description), u"de l’hôte"_s);
}

void tst_DComboJetonableAcces::motDePasse()
{
    monCombo->lineEdit()->setEchoMode(QLineEdit::Password);
    monCombo->setEditText(u"secret"_s);
    QVERIFY(!Interface().text(QAccessible::Value).contains(u"s"));
    QVERIFY(!InterfaceDuChamp().textInterface()->text(0, 6).contains(u"s"));

    monCombo->lineEdit()->setEchoMode(QLineEdit::NoEcho);
    InterfaceDuChamp().setText(QAccessible::Value, u"nouveau"_s);
    QCOMPARE(monCombo->currentText(), u"nouveau"_s);
}

void tst_DComboJetonableAcces::changementsParLeLecteur()
{
    QAccessibleEditableTextInterface * const edition = InterfaceDuChamp().editableTextInterface();
    QVERIFY(edition);
    monCombo->setEditText(u"mot"_s);
    edition->insertText(3, u"s"_s);
    edition->deleteText(0, 1);
    edition->replaceText(0, 1, u"u"_s);
    QCOMPARE(monCombo->currentText(), u"uts"_s);
    edition->deleteText(7, 9);
    edition->deleteText(-2, 1);
    edition->replaceText(0, -1, {}); // an end before the beginning
    edition->replaceText(2, 1, {});
    QCOMPARE(monCombo->currentText(), u"uts"_s);

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    edition->insertText(2, u"x"_s);
    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), u"x"_s);

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    edition->deleteText(0, 2);
    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), QString());

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    InterfaceDuChamp().setText(QAccessible::Value, u"tout"_s);
    QCOMPARE(monCombo->currentText(), u"tout"_s);

    monCombo->lineEdit()->setReadOnly(true);
    edition->deleteText(0, 4);
    QCOMPARE(monCombo->currentText(), u"tout"_s);
}

void tst_DComboJetonableAcces::enfants()
{
    QCOMPARE(Interface().childCount(), 1);
    QCOMPARE(Interface().child(0)->object(), monCombo->lineEdit());
    QCOMPARE(Interface().child(1), nullptr);
    QCOMPARE(Interface().indexOfChild(&InterfaceDuChamp()), 0);
    QCOMPARE(Interface().indexOfChild(&Interface()), -1);
    QCOMPARE(Interface().focusChild(), nullptr);
    QCOMPARE(InterfaceDuChamp().parent(), &Interface());
    QPoint const milieu = monCombo->lineEdit()->mapToGlobal(monCombo->lineEdit()->rect().center());
    QCOMPARE(Interface().childAt(milieu.x(), milieu.y()), &InterfaceDuChamp());
    QCOMPARE(Interface().childAt(-5000, -5000), nullptr);
}

void tst_DComboJetonableAcces::actions()
{
    QSignalSpy const demandes(monCombo.get(), &DComboJetonable::SignalShowPopup);
    QAccessibleActionInterface * const actions = Interface().actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));

    actions->doAction(QAccessibleActionInterface::showMenuAction());
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(demandes.count(), 2);

    monCombo->setEnabled(false);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(demandes.count(), 2);
}

void tst_DComboJetonableAcces::actionVider()
{
    QString const vider = u"Clear"_s;
    QAccessibleActionInterface * const actions = Interface().actionInterface();
    QVERIFY(!actions->actionNames().contains(vider));
    actions->doAction(vider);

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QVERIFY(actions->actionNames().contains(vider));
    QCOMPARE(actions->localizedActionName(vider), u"Vider"_s);
    QSignalSpy const icone(monCombo.get(), &DComboJetonable::SignalBoutonXAppuyay);
    actions->doAction(vider);
    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(icone.count(), 1);

    monCombo->DesactiveSuppression();
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QVERIFY(!actions->actionNames().contains(vider));
    actions->doAction(vider);
    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableAcces::changementsAnnonces()
{
    auto const annoncees = [] {
        QList<QObject const *> objets;
        for (auto const & annonce : LecteurSimulay::Annonces())
            if (annonce.nature == QAccessible::ValueChanged)
                objets += annonce.objet;
        LecteurSimulay::Oublie();
        return objets;
    };
    LecteurSimulay::Oublie();
    // The combo box has the focus in the field's place.
    QList<QObject const *> const attendues = {monCombo->lineEdit(), monCombo.get()};

    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QCOMPARE(annoncees(), attendues);
    monCombo->DesactiveJeton();
    QCOMPARE(annoncees(), attendues);
}

void tst_DComboJetonableAcces::interfacesSansObjet()
{
    QAccessible::Id const champ = QAccessible::uniqueId(&InterfaceDuChamp());
    QAccessible::Id const combo = QAccessible::uniqueId(&Interface());
    monCombo.reset();
    QCOMPARE(QAccessible::accessibleInterface(champ), nullptr);
    QCOMPARE(QAccessible::accessibleInterface(combo), nullptr);
    // Others are not disturbed when the last of ours has gone.
    QLineEdit ordinaire;
    QCOMPARE(QAccessible::queryAccessibleInterface(&ordinaire)->role(), QAccessible::EditableText);
}

QTEST_MAIN(tst_DComboJetonableAcces)
#include "tst_DComboJetonableAcces.moc"

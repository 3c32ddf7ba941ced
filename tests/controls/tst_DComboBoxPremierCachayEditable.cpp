// tests/controls/tst_DComboBoxPremierCachayEditable.cpp
#include "controls/DComboBox.h"

#include <QCompleter>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStringListModel>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Inline completion needs the focus.
bool PrendLeFocus(QComboBox & combo)
{
    combo.show();
    combo.activateWindow();
    combo.setFocus();
    return QTest::qWaitForWindowActive(&combo) && combo.hasFocus();
}

/// Counts how often its rows are looked at.
class ModeleCompteur : public QStringListModel
{
public:
    using QStringListModel::QStringListModel;

    QModelIndex index(int ligne, int colonne, QModelIndex const & parent) const override
    {
        ++mesDemandes;
        return QStringListModel::index(ligne, colonne, parent);
    }
    QVariant data(QModelIndex const & index, int role) const override
    {
        ++mesDemandes;
        return QStringListModel::data(index, role);
    }

    mutable int mesDemandes = 0;
};

int CompteDemandes(int lignes)
{
    ModeleCompteur modele;
    DComboBox combo;
    combo.setEditable(true);
    combo.setModel(&modele);
    combo.CachePremierElement();
    combo.addItem(u"premier"_s);
    // QCompleter itself looks at every row anew for the text of the current item, if that is
    // hidden.
    combo.setCurrentIndex(-1);
    modele.mesDemandes = 0;
    for (int i = 1; i < lignes; ++i)
        combo.addItem(QString::number(i));
    int const demandes = modele.mesDemandes;
    return combo.completer()->model()->rowCount() == lignes - 1 ? demandes : -1;
}

QString Complete(QComboBox & combo, Qt::Key lettre)
{
    combo.lineEdit()->clear();
    QTest::keyClick(&combo, lettre);
    return combo.lineEdit()->text();
}

} // namespace

class tst_DComboBoxPremierCachayEditable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void editableAuxTouches();
    void editableCompletion();
    void completionDUneMethodeDeSaisie();
    void completeurEtranger();
    void completeurQuiSurvit();
    void completeurProprietaireDuModele();
    void completionEnListe();
    void editableCompletionSuitLeModele();
    void remplissage();
    void editableTexteEntier();
    void editableTexteEntierQuittay();
    void editableSansDeleguay();
};

void tst_DComboBoxPremierCachayEditable::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayEditable::editableAuxTouches()
{
    DComboBox combo;
    combo.setEditable(true);
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    combo.CachePremierElement();
    combo.setCurrentIndex(2);
    QTest::keyClick(&combo, Qt::Key_Up);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(combo.lineEdit()->text(), u"b"_s);
    QTest::keyClick(&combo, Qt::Key_Home); // moves the text cursor
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(combo.lineEdit()->cursorPosition(), 0);
    QTest::keyClick(&combo, Qt::Key_X);
    QCOMPARE(combo.lineEdit()->text(), u"xb"_s);
}

void tst_DComboBoxPremierCachayEditable::editableCompletion()
{
    DComboBox combo;
    combo.setEditable(true);
    combo.addItems({u"abricot"_s, u"avocat"_s, u"banane"_s});
    QVERIFY(PrendLeFocus(combo));
    QCOMPARE(Complete(combo, Qt::Key_A), u"abricot"_s);
    combo.CachePremierElement();
    QCOMPARE(Complete(combo, Qt::Key_A), u"avocat"_s);
    QCOMPARE(combo.lineEdit()->selectedText(), u"vocat"_s);
    combo.lineEdit()->clear();
    QTest::keyClicks(&combo, u"ab"_s);
    QCOMPARE(combo.lineEdit()->text(), u"ab"_s);

    combo.setEditable(false);
    combo.setEditable(true); // with a completer of its own again
    QCOMPARE(Complete(combo, Qt::Key_A), u"avocat"_s);
}

void tst_DComboBoxPremierCachayEditable::completionDUneMethodeDeSaisie()
{
    DComboBox combo;
    combo.addItems({u"abricot"_s, u"avocat"_s, u"banane"_s});
    combo.CachePremierElement();
    QVERIFY(PrendLeFocus(combo));
    combo.setEditable(true);
    combo.completer()->setCompletionMode(QCompleter::PopupCompletion);
    combo.lineEdit()->clear();
    QInputMethodEvent evenement;
    evenement.setCommitString(u"a"_s);
    QCoreApplication::sendEvent(&combo, &evenement);
    QCOMPARE(combo.lineEdit()->text(), u"a"_s);
    QCOMPARE(combo.completer()->completionCount(), 1);
    combo.completer()->popup()->hide();
}

void tst_DComboBoxPremierCachayEditable::completeurEtranger()
{
    QStringListModel autre({u"abeille"_s});
    DComboBox combo;
    combo.setEditable(true);
    combo.addItems({u"abricot"_s, u"avocat"_s});
    combo.CachePremierElement();
    auto * const completeur = new QCompleter(&autre, &combo);
    completeur->setCompletionMode(QCompleter::InlineCompletion);
    combo.setCompleter(completeur);
    QVERIFY(PrendLeFocus(combo));
    QCOMPARE(Complete(combo, Qt::Key_A), u"abeille"_s);
    QCOMPARE(completeur->model(), &autre);
}

void tst_DComboBoxPremierCachayEditable::completeurQuiSurvit()
{
    QStringListModel modele({u"abricot"_s, u"avocat"_s});
    QCompleter completeur(&modele);
    {
        DComboBox combo;
        combo.setEditable(true);
        combo.setModel(&modele);
        combo.setCompleter(&completeur);
        combo.CachePremierElement();
        QCOMPARE(completeur.model()->rowCount(), 1);
    }
    modele.setStringList({u"x"_s, u"y"_s, u"z"_s});
    QCOMPARE(completeur.model()->rowCount(), 3);
}

void tst_DComboBoxPremierCachayEditable::completeurProprietaireDuModele()
{
    DComboBox combo;
    combo.setEditable(true);
    auto * const completeur = new QCompleter({u"abricot"_s, u"avocat"_s}, &combo);
    QPointer<QAbstractItemModel> const modele = completeur->model();
    QCOMPARE(modele->parent(), completeur);
    combo.setModel(modele);
    combo.setCompleter(completeur);
    combo.CachePremierElement();
    QVERIFY(modele);
    QCOMPARE(combo.model(), modele.data());
    QCOMPARE(combo.count(), 2);
    QVERIFY(completeur->model() != modele);
    QCOMPARE(completeur->model()->rowCount(), 1);
    combo.setModel(new QStringListModel(&combo));
    QVERIFY(!modele); // nobody else would free it
}

void tst_DComboBoxPremierCachayEditable::completionEnListe()
{
    DComboBox combo;
    combo.setEditable(true);
    combo.addItems({u"abricot"_s, u"avocat"_s, u"banane"_s});
    combo.completer()->setCompletionMode(QCompleter::PopupCompletion);
    combo.CachePremierElement();
    QVERIFY(PrendLeFocus(combo));
    Complete(combo, Qt::Key_A);
    QAbstractItemView * const liste = combo.completer()->popup();
    QTRY_VERIFY(liste->isVisible());
    QCOMPARE(liste->model()->rowCount(), 1);
    QSignalSpy espion(&combo, &QComboBox::activated);
    QTest::keyClick(liste, Qt::Key_Down);
    QTest::keyClick(liste, Qt::Key_Return);
    QCOMPARE(combo.currentIndex(), 1);
    QVERIFY(!espion.isEmpty());
    for (QList<QVariant> const & arguments : espion)
        QCOMPARE(arguments.at(0).toInt(), 1);
}

void tst_DComboBoxPremierCachayEditable::editableCompletionSuitLeModele()
{
    DComboBox combo;
    combo.setEditable(true);
    combo.addItems({u"abricot"_s, u"avocat"_s});
    combo.CachePremierElement();
    QVERIFY(PrendLeFocus(combo));
    QCOMPARE(Complete(combo, Qt::Key_A), u"avocat"_s);
    combo.insertItem(0, u"zeste"_s);
    QCOMPARE(Complete(combo, Qt::Key_A), u"abricot"_s);
    QCOMPARE(Complete(combo, Qt::Key_Z), u"z"_s);
    combo.removeItem(0);
    QCOMPARE(Complete(combo, Qt::Key_A), u"avocat"_s);
    QStringListModel modele({u"poire"_s, u"pomme"_s});
    combo.setModel(&modele);
    QCOMPARE(Complete(combo, Qt::Key_P), u"pomme"_s);
    modele.setStringList({u"menthe"_s, u"melon"_s});
    QCOMPARE(Complete(combo, Qt::Key_M), u"melon"_s);
    modele.sort(0);
    QCOMPARE(Complete(combo, Qt::Key_M), u"menthe"_s);
    modele.moveRow({}, 1, {}, 0);
    QCOMPARE(Complete(combo, Qt::Key_M), u"melon"_s);
}

void tst_DComboBoxPremierCachayEditable::remplissage()
{
    constexpr int kLignes = 500;
    int const demandes = CompteDemandes(kLignes);
    QVERIFY(demandes > 0);
    int const demandesPourLeDouble = CompteDemandes(2 * kLignes);
    QVERIFY2(demandesPourLeDouble < 3 * demandes, // not as the square of the rows
             qPrintable(u"%1, then %2"_s.arg(demandes).arg(demandesPourLeDouble)));
}

void tst_DComboBoxPremierCachayEditable::editableTexteEntier()
{
    DComboBox combo;
    combo.setEditable(true);
    combo.setInsertPolicy(QComboBox::NoInsert);
    combo.addItems({u"abricot"_s, u"avocat"_s});
    combo.CachePremierElement();
    combo.setCurrentIndex(1);
    combo.lineEdit()->clear();
    QTest::keyClicks(&combo, u"abricot"_s);
    QTest::keyClick(&combo, Qt::Key_Return);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_DComboBoxPremierCachayEditable::editableTexteEntierQuittay()
{
    QWidget fenetre;
    DComboBox combo(&fenetre);
    QLineEdit autre(&fenetre);
    combo.setEditable(true);
    combo.setInsertPolicy(QComboBox::NoInsert);
    combo.addItems({u"abricot"_s, u"avocat"_s});
    combo.CachePremierElement();
    combo.setCurrentIndex(1);
    fenetre.show();
    QVERIFY(PrendLeFocus(combo));
    combo.lineEdit()->clear();
    QTest::keyClicks(&combo, u"abricot"_s);
    QCOMPARE(combo.currentIndex(), 1);
    autre.setFocus();
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_DComboBoxPremierCachayEditable::editableSansDeleguay()
{
    DComboBox combo;
    combo.setEditable(true);
    combo.addItems({u"abricot"_s, u"banane"_s});
    combo.CachePremierElement();
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    QVERIFY(PrendLeFocus(combo));
    QCOMPARE(Complete(combo, Qt::Key_A), u"abricot"_s);
    QCOMPARE(combo.completer()->model(), combo.model());
}

QTEST_MAIN(tst_DComboBoxPremierCachayEditable)
#include "tst_DComboBoxPremierCachayEditable.moc"

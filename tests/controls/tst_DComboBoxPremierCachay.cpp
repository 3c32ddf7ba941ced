// tests/controls/tst_DComboBoxPremierCachay.cpp
#include "controls/DComboBox.h"
#include "controls/DComboBoxAvecDLabelElision.h"

#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

// The closed combo box; the list has its own tests.

namespace {

// Each letter is a new search.
class SansIntervalle
{
public:
    SansIntervalle() { QApplication::setKeyboardInputInterval(0); }
    ~SansIntervalle() { QApplication::setKeyboardInputInterval(-1); } // as the platform has it
};

void Desactive(QComboBox & combo, int ligne)
{
    qobject_cast<QStandardItemModel *>(combo.model())->item(ligne)->setEnabled(false);
}

void Roule(QComboBox & combo, int delta)
{
    QPointF const centre = QRectF(combo.rect()).center();
    QWheelEvent evenement(centre, combo.mapToGlobal(centre), QPoint(), QPoint(0, delta),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &evenement);
    QVERIFY(evenement.isAccepted());
}

// Inline completion needs the focus.
bool PrendLeFocus(QComboBox & combo)
{
    combo.show();
    combo.activateWindow();
    combo.setFocus();
    return QTest::qWaitForWindowActive(&combo) && combo.hasFocus();
}

QString Complete(QComboBox & combo, Qt::Key lettre)
{
    combo.lineEdit()->clear();
    QTest::keyClick(&combo, lettre);
    return combo.lineEdit()->text();
}

class StyleSansRoulette : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override
    {
        if (hint == SH_ComboBox_AllowWheelScrolling)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, retour);
    }
};

struct Espions
{
    explicit Espions(QComboBox * combo)
        : active(combo, &QComboBox::activated)
        , texte(combo, &QComboBox::textActivated)
        , courant(combo, &QComboBox::currentIndexChanged)
    {
    }
    QList<int> Comptes() const
    {
        return {static_cast<int>(active.count()), static_cast<int>(texte.count()),
                static_cast<int>(courant.count())};
    }
    QSignalSpy active;
    QSignalSpy texte;
    QSignalSpy courant;
};

} // namespace

class tst_DComboBoxPremierCachay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void drapeau();
    void drapeauSansDeleguay();
    void drapeauAvecLaVue();
    void touches_data();
    void touches();
    void comptesDeSignaux_data();
    void comptesDeSignaux();
    void roulette_data();
    void roulette();
    void rouletteDuStyle();
    void lettres_data();
    void lettres();
    void lettresEnsemble();
    void lettreRepetee();
    void lettresDUneAutreColonne();
    void espaceOuvreLaListe();
    void indiceZeroParLeCode();
    void modelesSuivis();
    void modeleDetruit();
    void racine();
    void sansElementOuUnSeul();
    void editableAuxTouches();
    void editableCompletion();
    void completeurEtranger();
    void completeurQuiSurvit();
    void completionEnListe();
    void editableCompletionSuitLeModele();
    void editableTexteEntier();
    void editableSansDeleguay();
    void detruitParUnReceveur();
    void avecLabel();
};

void tst_DComboBoxPremierCachay::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachay::drapeau()
{
    DComboBox combo;
    combo.addItems({u"un"_s, u"deux"_s});
    QVERIFY(!combo.PremierElementCachay());
    combo.CachePremierElement();
    QVERIFY(combo.PremierElementCachay());
    combo.CachePremierElement();
    QVERIFY(combo.PremierElementCachay());
    QCOMPARE(combo.count(), 2);
}

void tst_DComboBoxPremierCachay::drapeauSansDeleguay()
{
    DComboBox combo;
    combo.addItems({u"un"_s, u"deux"_s});
    combo.CachePremierElement();
    QPointer<QAbstractItemDelegate> const ancien = combo.itemDelegate();
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    QVERIFY(!combo.PremierElementCachay());
    combo.setCurrentIndex(1);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentIndex(), 0);

    combo.CachePremierElement(); // nothing keeps it in mind
    QVERIFY(!combo.PremierElementCachay());
    combo.setItemDelegate(ancien);
    QVERIFY(combo.PremierElementCachay());
}

void tst_DComboBoxPremierCachay::drapeauAvecLaVue()
{
    DComboBox combo;
    combo.addItems({u"un"_s, u"deux"_s});
    combo.CachePremierElement();
    combo.setView(new QListView);
    QVERIFY(combo.PremierElementCachay());
    static_cast<QComboBox &>(combo).setView(new QListView);
    QVERIFY(!combo.PremierElementCachay());
}

void tst_DComboBoxPremierCachay::touches_data()
{
    QTest::addColumn<QList<int>>("desactives");
    QTest::addColumn<int>("separateur");
    QTest::addColumn<int>("depart");
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<int>("arrivee");
    struct Cas
    {
        char const * nom;
        QList<int> desactives;
        int separateur;
        int depart;
        Qt::Key touche;
        int arrivee;
    };
    QList<Cas> const cas = {
        {"up from none", {}, -1, -1, Qt::Key_Up, -1},
        {"down from none", {}, -1, -1, Qt::Key_Down, 1},
        {"page down from none", {}, -1, -1, Qt::Key_PageDown, 1},
        {"home from none", {}, -1, -1, Qt::Key_Home, 1},
        {"end from none", {}, -1, -1, Qt::Key_End, 4},
        {"up from the hidden one", {}, -1, 0, Qt::Key_Up, 0},
        {"page up from the hidden one", {}, -1, 0, Qt::Key_PageUp, 0},
        {"down from the hidden one", {}, -1, 0, Qt::Key_Down, 1},
        {"home from the hidden one", {}, -1, 0, Qt::Key_Home, 1},
        {"up from 1", {}, -1, 1, Qt::Key_Up, 1},
        {"page up from 1", {}, -1, 1, Qt::Key_PageUp, 1},
        {"home from 1", {}, -1, 1, Qt::Key_Home, 1},
        {"up from 2", {}, -1, 2, Qt::Key_Up, 1},
        {"home from 4", {}, -1, 4, Qt::Key_Home, 1},
        {"down from the last", {}, -1, 4, Qt::Key_Down, 4},
        {"down over a disabled one", {1}, -1, 0, Qt::Key_Down, 2},
        {"up before a disabled one", {1}, -1, 2, Qt::Key_Up, 2},
        {"up before two disabled ones", {1, 2}, -1, 3, Qt::Key_Up, 3},
        {"home before a disabled one", {1}, -1, 4, Qt::Key_Home, 2},
        {"end behind a disabled one", {4}, -1, 1, Qt::Key_End, 3},
        {"all others disabled, down", {1, 2, 3, 4}, -1, 0, Qt::Key_Down, 0},
        {"all others disabled, end", {1, 2, 3, 4}, -1, 0, Qt::Key_End, 0},
        {"all others disabled, end from none", {1, 2, 3, 4}, -1, -1, Qt::Key_End, -1},
        {"up before a separator", {}, 1, 2, Qt::Key_Up, 2},
        {"down over a separator", {}, 1, 0, Qt::Key_Down, 2},
        {"home before a separator", {}, 1, 3, Qt::Key_Home, 2},
    };
    for (Cas const & c : cas)
        QTest::newRow(c.nom) << c.desactives << c.separateur << c.depart << c.touche << c.arrivee;
}

void tst_DComboBoxPremierCachay::touches()
{
    QFETCH(QList<int>, desactives);
    QFETCH(int, separateur);
    QFETCH(int, depart);
    QFETCH(Qt::Key, touche);
    QFETCH(int, arrivee);
    DComboBox combo;
    combo.addItems({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    if (separateur >= 0)
        combo.insertSeparator(separateur);
    else
        combo.addItem(u"e"_s);
    for (int const ligne : desactives)
        Desactive(combo, ligne);
    combo.CachePremierElement();
    combo.setCurrentIndex(depart);

    QTest::keyClick(&combo, touche);

    QCOMPARE(combo.currentIndex(), arrivee);
}

void tst_DComboBoxPremierCachay::comptesDeSignaux_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("moves down") << Qt::Key_Down;
    QTest::newRow("moves up") << Qt::Key_Up;
    QTest::newRow("stays at the end") << Qt::Key_End;
    QTest::newRow("letter") << Qt::Key_B;
    QTest::newRow("letter of the current one") << Qt::Key_D;
    QTest::newRow("letter of none") << Qt::Key_Z;
}

void tst_DComboBoxPremierCachay::comptesDeSignaux()
{
    QFETCH(Qt::Key, touche);
    SansIntervalle const sansIntervalle;
    QStringList const textes = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QComboBox ordinaire;
    DComboBox combo;
    combo.CachePremierElement();
    QList<QList<int>> comptes;
    for (QComboBox * const une : {&ordinaire, static_cast<QComboBox *>(&combo)}) {
        une->addItems(textes);
        une->setCurrentIndex(3);
        Espions const espions(une);
        QTest::keyClick(une, touche);
        comptes << espions.Comptes();
    }
    QCOMPARE(comptes.at(1), comptes.at(0));
    QCOMPARE(combo.currentIndex(), ordinaire.currentIndex());
}

void tst_DComboBoxPremierCachay::roulette_data()
{
    QTest::addColumn<int>("depart");
    QTest::addColumn<int>("delta");
    QTest::addColumn<int>("arrivee");
    QTest::newRow("up from none") << -1 << 120 << -1;
    QTest::newRow("down from none") << -1 << -120 << 1;
    QTest::newRow("up from the hidden one") << 0 << 120 << 0;
    QTest::newRow("down from the hidden one") << 0 << -120 << 1;
    QTest::newRow("up from 1") << 1 << 120 << 1;
    QTest::newRow("up from 2") << 2 << 120 << 1;
    QTest::newRow("down from the last") << 2 << -120 << 2;
    QTest::newRow("neither") << 0 << 0 << 0;
}

void tst_DComboBoxPremierCachay::roulette()
{
    QFETCH(int, depart);
    QFETCH(int, delta);
    QFETCH(int, arrivee);
    DComboBox combo;
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    combo.CachePremierElement();
    combo.setCurrentIndex(depart);
    Espions const espions(&combo);
    Roule(combo, delta);
    QCOMPARE(combo.currentIndex(), arrivee);
    int const nombre = depart == arrivee ? 0 : 1;
    QCOMPARE(espions.Comptes(), QList<int>({nombre, nombre, nombre}));
}

void tst_DComboBoxPremierCachay::rouletteDuStyle()
{
    StyleSansRoulette style;
    DComboBox combo;
    combo.setStyle(&style);
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    combo.CachePremierElement();
    QPointF const centre = QRectF(combo.rect()).center();
    QWheelEvent evenement(centre, centre, QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &evenement);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_DComboBoxPremierCachay::lettres_data()
{
    QTest::addColumn<int>("depart");
    QTest::addColumn<Qt::Key>("lettre");
    QTest::addColumn<int>("arrivee");
    // abricot (hidden), avocat, banane, disabled, separator, Ananas
    QTest::newRow("from none") << -1 << Qt::Key_A << 1;
    QTest::newRow("from the hidden one") << 0 << Qt::Key_A << 1;
    QTest::newRow("to the next one") << 1 << Qt::Key_A << 5;
    QTest::newRow("around, over the hidden one") << 5 << Qt::Key_A << 1;
    QTest::newRow("the only one") << 1 << Qt::Key_B << 2;
    QTest::newRow("the only one again") << 2 << Qt::Key_B << 2;
    QTest::newRow("a disabled one") << 1 << Qt::Key_C << 1;
    QTest::newRow("none") << 2 << Qt::Key_Z << 2;
    QTest::newRow("none, from the hidden one") << 0 << Qt::Key_Z << 0;
}

void tst_DComboBoxPremierCachay::lettres()
{
    QFETCH(int, depart);
    QFETCH(Qt::Key, lettre);
    QFETCH(int, arrivee);
    SansIntervalle const sansIntervalle;
    DComboBox combo;
    combo.addItems({u"abricot"_s, u"avocat"_s, u"banane"_s, u"cerise"_s, u"Ananas"_s});
    combo.insertSeparator(4);
    Desactive(combo, 3);
    combo.CachePremierElement();
    combo.setCurrentIndex(depart);
    QTest::keyClick(&combo, lettre);
    QCOMPARE(combo.currentIndex(), arrivee);
}

void tst_DComboBoxPremierCachay::lettresEnsemble()
{
    QApplication::setKeyboardInputInterval(60000); // so that no pause parts them
    auto const retablis = qScopeGuard([] { QApplication::setKeyboardInputInterval(-1); });
    DComboBox combo;
    combo.addItems({u"la fin"_s, u"la nuit"_s, u"le jour"_s, u"lent"_s});
    combo.CachePremierElement();
    QTest::keyClicks(&combo, u"le"_s);
    QCOMPARE(combo.currentIndex(), 2);
    QTest::keyClick(&combo, Qt::Key_N);
    QCOMPARE(combo.currentIndex(), 3);
    QTest::keyClick(&combo, Qt::Key_Z); // no such item: stays
    QCOMPARE(combo.currentIndex(), 3);
}

void tst_DComboBoxPremierCachay::lettreRepetee()
{
    QApplication::setKeyboardInputInterval(60000);
    auto const retablis = qScopeGuard([] { QApplication::setKeyboardInputInterval(-1); });
    DComboBox combo;
    combo.addItems({u"a0"_s, u"a1"_s, u"b"_s, u"a3"_s, u"a4"_s});
    combo.CachePremierElement();
    QList<int> chemin;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&combo, Qt::Key_A);
        chemin << combo.currentIndex();
    }
    QCOMPARE(chemin, QList<int>({1, 3, 4, 1}));
}

void tst_DComboBoxPremierCachay::lettresDUneAutreColonne()
{
    SansIntervalle const sansIntervalle;
    QStandardItemModel modele(3, 2);
    for (int i = 0; i < 3; ++i) {
        modele.setItem(i, 0, new QStandardItem(u"x"_s));
        modele.setItem(i, 1, new QStandardItem(QString(QChar(u'a' + i))));
    }
    DComboBox combo;
    combo.setModel(&modele);
    combo.setModelColumn(1);
    combo.CachePremierElement();
    combo.setCurrentIndex(-1);
    QTest::keyClick(&combo, Qt::Key_C);
    QCOMPARE(combo.currentText(), u"c"_s);
    QTest::keyClick(&combo, Qt::Key_A);
    QCOMPARE(combo.currentText(), u"c"_s);
    QTest::keyClick(&combo, Qt::Key_X);
    QCOMPARE(combo.currentText(), u"c"_s);
}

void tst_DComboBoxPremierCachay::espaceOuvreLaListe()
{
    DComboBox combo;
    combo.addItems({u"a"_s, u" b"_s});
    combo.CachePremierElement();
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Space);
    QTRY_VERIFY(combo.view()->isVisible());
    QCOMPARE(combo.currentIndex(), 0);
    combo.hidePopup();
}

void tst_DComboBoxPremierCachay::indiceZeroParLeCode()
{
    DComboBox combo;
    combo.addItems({u"choisir"_s, u"a"_s, u"b"_s});
    combo.CachePremierElement();
    combo.setCurrentIndex(2);
    Espions const espions(&combo);
    combo.setCurrentIndex(0);
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(combo.currentText(), u"choisir"_s);
    QCOMPARE(espions.Comptes(), QList<int>({0, 0, 1}));
    combo.setCurrentText(u"a"_s);
    QCOMPARE(combo.currentIndex(), 1);
    combo.setCurrentText(u"choisir"_s);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_DComboBoxPremierCachay::modelesSuivis()
{
    DComboBox combo;
    combo.CachePremierElement();
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    combo.setCurrentIndex(1);
    combo.insertItem(0, u"z"_s);
    QCOMPARE(combo.currentIndex(), 2);
    QTest::keyClick(&combo, Qt::Key_Up); // what was row 0 is at hand now
    QCOMPARE(combo.currentText(), u"a"_s);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"a"_s);

    combo.removeItem(0); // and now it is the first again
    QCOMPARE(combo.currentText(), u"a"_s);
    QCOMPARE(combo.currentIndex(), 0);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"b"_s);

    QStringListModel modele({u"x"_s, u"y"_s});
    combo.setModel(&modele);
    QCOMPARE(combo.currentIndex(), 0);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"y"_s);
    modele.setStringList({u"k"_s, u"l"_s, u"m"_s});
    QTest::keyClick(&combo, Qt::Key_End);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentText(), u"l"_s);
}

void tst_DComboBoxPremierCachay::racine()
{
    QStandardItemModel modele;
    auto * const parent = new QStandardItem(u"parent"_s);
    for (QString const & texte : {u"a"_s, u"b"_s, u"c"_s})
        parent->appendRow(new QStandardItem(texte));
    modele.appendRow(parent);
    DComboBox combo;
    combo.setModel(&modele);
    combo.CachePremierElement();
    combo.setRootModelIndex(parent->index());
    combo.setCurrentIndex(-1);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentText(), u"b"_s);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"b"_s);
}

void tst_DComboBoxPremierCachay::sansElementOuUnSeul()
{
    SansIntervalle const sansIntervalle;
    DComboBox combo;
    combo.CachePremierElement();
    combo.show();
    for (int const nombre : {0, 1}) {
        QCOMPARE(combo.count(), nombre);
        for (Qt::Key const touche : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
                                     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_S})
            QTest::keyClick(&combo, touche);
        Roule(combo, 120);
        Roule(combo, -120);
        QCOMPARE(combo.currentIndex(), nombre - 1);
        combo.showPopup();
        QVERIFY(!combo.view()->isVisible());
        combo.addItem(u"seul"_s);
    }
    combo.clear();
    QCOMPARE(combo.currentIndex(), -1);
}

void tst_DComboBoxPremierCachay::editableAuxTouches()
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

void tst_DComboBoxPremierCachay::editableCompletion()
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

void tst_DComboBoxPremierCachay::completeurEtranger()
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

void tst_DComboBoxPremierCachay::completeurQuiSurvit()
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

void tst_DComboBoxPremierCachay::modeleDetruit()
{
    auto modele = std::make_unique<QStringListModel>(QStringList{u"a"_s, u"b"_s, u"c"_s});
    DComboBox combo;
    combo.setModel(modele.get());
    combo.CachePremierElement();
    QTest::keyClick(&combo, Qt::Key_End);
    modele.reset();
    QTest::keyClick(&combo, Qt::Key_Home);
    combo.addItems({u"x"_s, u"y"_s});
    QTest::keyClick(&combo, Qt::Key_End);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentText(), u"y"_s);
}

void tst_DComboBoxPremierCachay::completionEnListe()
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

void tst_DComboBoxPremierCachay::editableCompletionSuitLeModele()
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
}

void tst_DComboBoxPremierCachay::editableTexteEntier()
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

void tst_DComboBoxPremierCachay::editableSansDeleguay()
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

void tst_DComboBoxPremierCachay::detruitParUnReceveur()
{
    QPointer<DComboBox> const combo = new DComboBox;
    combo->addItems({u"a"_s, u"b"_s});
    combo->CachePremierElement();
    int textes = 0;
    connect(combo, &QComboBox::textActivated, this, [&] { ++textes; });
    connect(combo, &QComboBox::activated, this, [&] { delete combo; });
    QKeyEvent evenement(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(combo, &evenement);
    QVERIFY(!combo);
    QCOMPARE(textes, 0);
}

void tst_DComboBoxPremierCachay::avecLabel()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    QVERIFY(!combo.PremierElementCachay());
    combo.CachePremierElement();
    QVERIFY(combo.PremierElementCachay());
    combo.setCurrentIndex(2);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentIndex(), 1);
    combo.show();
    combo.showPopup();
    QCOMPARE(combo.view()->visualRect(combo.model()->index(0, 0)).height(), 0);
    QVERIFY(combo.view()->visualRect(combo.model()->index(1, 0)).height() > 0);
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxPremierCachay)
#include "tst_DComboBoxPremierCachay.moc"

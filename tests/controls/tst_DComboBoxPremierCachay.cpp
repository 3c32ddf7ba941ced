// tests/controls/tst_DComboBoxPremierCachay.cpp
#include "controls/DComboBoxAvecDLabelElision.h"

#include "controls/EssaisPremierCachay.h"

#include <QProxyStyle>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace EssaisPremierCachay;

// The closed combo box; the list has its own tests.

namespace {

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
    void separateurActif();
    void roulette_data();
    void roulette();
    void rouletteDuStyle();
    void indiceZeroParLeCode();
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

// In a model that has no flags to set, a separator is only marked.
void tst_DComboBoxPremierCachay::separateurActif()
{
    DComboBox combo;
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    combo.insertSeparator(1);
    qobject_cast<QStandardItemModel *>(combo.model())->item(1)->setEnabled(true);
    combo.CachePremierElement();
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentText(), u"b"_s);
    Roule(combo, 120);
    QCOMPARE(combo.currentText(), u"b"_s);
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

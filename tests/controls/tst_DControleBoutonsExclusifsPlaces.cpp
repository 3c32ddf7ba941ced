// tests/controls/tst_DControleBoutonsExclusifsPlaces.cpp
#include "controls/DControleBoutonsExclusifs.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLayout>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Infos = std::vector<DControleBoutonsExclusifs::InfosBouton>;

Infos TroisBoutons()
{
    return {{u"Jour"_s, 1}, {u"Semaine"_s, 2, true}, {u"Mois"_s, 3}};
}

QList<QAbstractButton *> Boutons(DControleBoutonsExclusifs const & controle)
{
    return controle.findChild<QButtonGroup *>()->buttons();
}

QStringList Places(DControleBoutonsExclusifs const & controle,
                   char const * propriete = "ControleBascule")
{
    QStringList places;
    for (auto * const bouton : Boutons(controle)) {
        QVariant const place = bouton->property(propriete);
        places << (place.isValid() ? place.toString() : u"rien"_s);
    }
    return places;
}

// Counts what it is asked to polish.
class StyleCompteur : public QProxyStyle
{
public:
    int poses = 0;
    int deposes = 0;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget * widget) override
    {
        ++poses;
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget * widget) override
    {
        ++deposes;
        QProxyStyle::unpolish(widget);
    }
};

} // namespace

// What style sheets find on the buttons.
class tst_DControleBoutonsExclusifsPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void places_data();
    void places();
    void autrePropriete_data();
    void autrePropriete();
    void repolis();
    void placesDeDroiteAGauche();
};

void tst_DControleBoutonsExclusifsPlaces::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DControleBoutonsExclusifsPlaces::places_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<QStringList>("places");
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("a single one is the first") << 1 << QStringList{u"AGauche"_s};
    QTest::newRow("two") << 2 << QStringList{u"AGauche"_s, u"ADroite"_s};
    QTest::newRow("four") << 4 << QStringList{u"AGauche"_s, {}, {}, u"ADroite"_s};
}

void tst_DControleBoutonsExclusifsPlaces::places()
{
    QFETCH(int, nombre);
    Infos infos;
    for (int i = 0; i < nombre; ++i)
        infos.push_back({QString::number(i), i});
    DControleBoutonsExclusifs const controle(infos);
    QTEST(Places(controle), "places");
}

void tst_DControleBoutonsExclusifsPlaces::autrePropriete_data()
{
    QTest::addColumn<QByteArray>("nom");
    QTest::addColumn<bool>("ecrit");
    QTest::newRow("another name") << QByteArray("BasculeDuHaut") << true;
    QTest::newRow("null") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void tst_DControleBoutonsExclusifsPlaces::autrePropriete()
{
    QFETCH(QByteArray, nom);
    QFETCH(bool, ecrit);
    QStringList const places{u"AGauche"_s, QString(), u"ADroite"_s};
    DControleBoutonsExclusifs controle(TroisBoutons());
    auto const nombre = controle.DonneBouton(1)->dynamicPropertyNames().size();
    controle.AppliqueProprieteStyleBoutons(nom.isNull() ? nullptr : nom.constData());
    QCOMPARE(controle.DonneBouton(1)->dynamicPropertyNames().size(), nombre + ecrit);
    if (ecrit)
        QCOMPARE(Places(controle, nom.constData()), places);
    QCOMPARE(Places(controle), places); // the default name is still there

    controle.DonneBouton(1)->setProperty("ControleBascule", u"autre"_s);
    controle.AppliqueProprieteStyleBoutons();
    QCOMPARE(Places(controle), places);
}

void tst_DControleBoutonsExclusifsPlaces::repolis()
{
    StyleCompteur style;
    DControleBoutonsExclusifs controle(TroisBoutons());
    for (auto * const bouton : Boutons(controle))
        bouton->setStyle(&style);
    style.poses = style.deposes = 0;
    controle.AppliqueProprieteStyleBoutons("autre");
    QCOMPARE(style.deposes, 3);
    QCOMPARE(style.poses, 3);
}

// Deliberate: the first button keeps its value on the right.
void tst_DControleBoutonsExclusifsPlaces::placesDeDroiteAGauche()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    controle.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(Places(controle), QStringList({u"AGauche"_s, QString(), u"ADroite"_s}));
    controle.resize(controle.sizeHint());
    controle.layout()->activate();
    QVERIFY(controle.DonneBouton(1)->x() > controle.DonneBouton(3)->x());
}

QTEST_MAIN(tst_DControleBoutonsExclusifsPlaces)
#include "tst_DControleBoutonsExclusifsPlaces.moc"

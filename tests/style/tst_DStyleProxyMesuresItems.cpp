// tests/style/tst_DStyleProxyMesuresItems.cpp
#include "style/DStyleProxy.h"

#include "foundation/TailleTexte.h"
#include "style/EssaisTexteRiche.h"
#include "style/StyleDeMesures.h"

#include <QtTest>

#include <QComboBox>
#include <QListView>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kContenu(100, 20);
constexpr QSize kMarges(4, 5);
constexpr int kSansIcone = 4;

RegleTexteRiche Remplace(char const * ouvrant, char const * fermant)
{
    return InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
        UniChaine(ouvrant), UniChaine(fermant));
}

// Of normal items: tags that go, that become words, and that break the line.
void MetsRegles(QWidget & widget)
{
    EnsembleRegles const regles = {
        {UniChaine("court"), Remplace("", "")},
        {UniChaine("long"), Remplace("beaucoup de mots devant ", " et beaucoup derrière")},
        {UniChaine("br/"), Remplace("<br>", "")},
        {UniChaine("grand"), Remplace("<span style=\"font-size:60px\">", "</span>")}};
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(MapDeRegles{{kContexteNormal, regles}}));
    widget.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
}

QStyleOptionViewItem DonneOption(QString const & texte)
{
    QStyleOptionViewItem option;
    option.text = texte;
    option.font.setPixelSize(16);
    return option;
}

QSize TailleRiche(QString const & html, QFont const & font)
{
    QLabel label(html);
    label.setTextFormat(Qt::RichText);
    label.setFont(font);
    return label.sizeHint();
}

} // namespace

// Items whose texts follow rules have room for what is drawn, and not for their tags.
class tst_DStyleProxyMesuresItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void selonLesRegles_data();
    void selonLesRegles();
    void sansRegle_data();
    void sansRegle();
    void autreContexte();
    void avecIcone();
    void fonctionVide();
    void listeDeCombo();
    void vueReelle_data();
    void vueReelle();

private:
    QSize Mesure(QStyleOptionViewItem const & option, QWidget const * widget) const
    {
        return monStyle->sizeFromContents(QStyle::CT_ItemViewItem, &option, kContenu, widget);
    }

    static QSize TailleBrute() { return kContenu + kMarges + QSize(0, kSansIcone); }

    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyMesuresItems::init()
{
    auto * const base = new StyleDeMesures;
    base->marges[QStyle::CT_ItemViewItem] = kMarges;
    monStyle = std::make_unique<DStyleProxy>(base);
}

void tst_DStyleProxyMesuresItems::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyMesuresItems::selonLesRegles_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("html");
    QTest::addColumn<int>("sens"); // of the difference in width
    QTest::addColumn<bool>("plusHaut");
    QTest::newRow("narrower") << u"<court>mot</court>"_s << u"mot"_s << -1 << false;
    QTest::newRow("wider") << u"<long>mot</long>"_s
                           << u"beaucoup de mots devant mot et beaucoup derrière"_s << 1 << false;
    QTest::newRow("higher") << u"un<br/>deux<br/>trois"_s << u"un<br>deux<br>trois"_s << -1 << true;
    QTest::newRow("wider and higher")
        << u"<grand>MMMMMMMMMM</grand>"_s << u"<span style=\"font-size:60px\">MMMMMMMMMM</span>"_s
        << 1 << true;
}

void tst_DStyleProxyMesuresItems::selonLesRegles()
{
    QFETCH(QString, texte);
    QFETCH(QString, html);
    QFETCH(int, sens);
    QFETCH(bool, plusHaut);
    QListView vue;
    MetsRegles(vue);
    QStyleOptionViewItem const option = DonneOption(texte);

    QSize const ecart = Mesure(option, &vue) - TailleBrute();

    QSize const brute = RoutinesGeneralesQt::DonneTailleTexteBrut(texte, option.font);
    QSize const riche = TailleRiche(html, option.font);
    QCOMPARE(ecart.width(), riche.width() - brute.width());
    QCOMPARE(ecart.height(), std::max(0, riche.height() - brute.height()));
    QVERIFY(ecart.width() * sens > 0);
    if (plusHaut)
        QCOMPARE_GT(ecart.height(), option.font.pixelSize());
    else
        QCOMPARE_LT(ecart.height(), option.font.pixelSize());
}

void tst_DStyleProxyMesuresItems::sansRegle_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("plain") << u"mot"_s;
    QTest::newRow("lone bracket") << u"a < b"_s;
    QTest::newRow("another tag") << u"<z>mot</z>"_s;
    QTest::newRow("another tag that is not closed") << u"<z>mot"_s;
    QTest::newRow("empty") << QString();
}

void tst_DStyleProxyMesuresItems::sansRegle()
{
    QFETCH(QString, texte);
    QListView vue;
    MetsRegles(vue);
    QCOMPARE(Mesure(DonneOption(texte), &vue), TailleBrute());

    QString const riche = u"<court>mot</court>"_s + texte.remove(u"<z>"_s).remove(u"</z>"_s);
    QVERIFY(Mesure(DonneOption(riche), &vue) != TailleBrute());
    vue.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), 1);
    QCOMPARE(Mesure(DonneOption(riche), &vue), TailleBrute());
    QCOMPARE(Mesure(DonneOption(riche), nullptr), TailleBrute());
}

void tst_DStyleProxyMesuresItems::autreContexte()
{
    QListView vue;
    MetsRegles(vue);
    QStyleOptionViewItem option = DonneOption(u"<court>mot</court>"_s);
    for (auto const etat : {QStyle::State_Selected, QStyle::State_MouseOver}) {
        option.state = etat;
        QCOMPARE(Mesure(option, &vue), TailleBrute());
    }
    option.state = QStyle::State_Enabled;
    QVERIFY(Mesure(option, &vue) != TailleBrute());
}

void tst_DStyleProxyMesuresItems::avecIcone()
{
    QListView vue;
    MetsRegles(vue);
    QStyleOptionViewItem option = DonneOption(u"<court>mot</court>"_s);
    QSize const sans = Mesure(option, &vue);
    QPixmap image(16, 16);
    image.fill(Qt::red);
    option.icon = image;
    QCOMPARE(Mesure(option, &vue), sans - QSize(0, kSansIcone));
}

void tst_DStyleProxyMesuresItems::fonctionVide()
{
    QListView vue;
    MetsRegles(vue);
    EnsembleRegles const vides = {{UniChaine("court"), RegleTexteRiche()},
                                  {UniChaine(), RegleTexteRiche()}};
    vue.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                    QVariant::fromValue(MapDeRegles{{kContexteNormal, vides}}));
    QCOMPARE(Mesure(DonneOption(u"<court>mot</court>"_s), &vue), TailleBrute());
}

// By the rules of the combo box, as its list is drawn.
void tst_DStyleProxyMesuresItems::listeDeCombo()
{
    QListView vue;
    MetsRegles(vue);
    QStyleOptionViewItem const option = DonneOption(u"<court>mot</court>"_s);
    QSize const attendue = Mesure(option, &vue);

    QComboBox combo;
    QVERIFY(combo.view()->inherits("QComboBoxListView"));
    MetsRegles(*combo.view()); // of which nobody asks
    QCOMPARE(Mesure(option, combo.view()), TailleBrute());
    MetsRegles(combo);
    QCOMPARE(Mesure(option, combo.view()), attendue);
    combo.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), QVariant());
    MetsRegles(*combo.view()->parentWidget());
    QCOMPARE(Mesure(option, combo.view()), attendue);
}

void tst_DStyleProxyMesuresItems::vueReelle_data()
{
    QTest::addColumn<int>("genre");
    QTest::newRow("list") << 0;
    QTest::newRow("tree") << 1;
    QTest::newRow("table") << 2;
}

// A rich item is as wide as a plain one with the text that its rules make.
void tst_DStyleProxyMesuresItems::vueReelle()
{
    QFETCH(int, genre);
    QListView liste;
    QTreeView arbre;
    QTableView table;
    QList<QAbstractItemView *> const vues = {&liste, &arbre, &table};
    QAbstractItemView & vue = *vues.at(genre);
    MetsRegles(vue);
    DStyleProxy style(QStyleFactory::create(u"Fusion"_s));
    vue.setStyle(&style);
    QStandardItemModel modele(3, 1);
    modele.setData(modele.index(0, 0), u"<court>un mot</court>"_s);
    modele.setData(modele.index(1, 0), u"un mot"_s);
    modele.setData(modele.index(2, 0), u"<long>un mot</long>"_s);
    vue.setModel(&modele);

    int const riche = vue.sizeHintForIndex(modele.index(0, 0)).width();
    int const simple = vue.sizeHintForIndex(modele.index(1, 0)).width();

    QVERIFY2(qAbs(riche - simple) <= 2, qPrintable(u"%1, %2"_s.arg(riche).arg(simple)));
    QCOMPARE_GT(vue.sizeHintForIndex(modele.index(2, 0)).width(), 2 * simple);
    vue.setStyle(nullptr);
}

QTEST_MAIN(tst_DStyleProxyMesuresItems)
#include "tst_DStyleProxyMesuresItems.moc"

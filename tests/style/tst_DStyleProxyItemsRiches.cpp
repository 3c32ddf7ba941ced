// tests/style/tst_DStyleProxyItemsRiches.cpp
#include "style/EssaisItemsRiches.h"

#include "style/CaptureErreurs.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QAbstractItemView> CreeVue(QString const & genre)
{
    if (genre == "list"_L1)
        return std::make_unique<QListView>();
    if (genre == "tree"_L1)
        return std::make_unique<QTreeView>();
    return std::make_unique<QTableView>();
}

} // namespace

// Items of views whose texts follow rules.
class tst_DStyleProxyItemsRiches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void contextes_data();
    void contextes();
    void autresContextesSansRegle_data();
    void autresContextesSansRegle();
    void propriete_data();
    void propriete();
    void proprieteSeule();
    void texteSansRegle();
    void fonctionVide();
    void couleurDuTexte_data();
    void couleurDuTexte();
    void fontDeLItem();
    void placeDuTexteSimple_data();
    void placeDuTexteSimple();
    void indicateurACote_data();
    void indicateurACote();
    void deDroiteAGauche_data();
    void deDroiteAGauche();
    void baliseNonFermee_data();
    void baliseNonFermee();
    void baliseNonFermeeMesuree();

private:
    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyItemsRiches::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyItemsRiches::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyItemsRiches::contextes_data()
{
    QTest::addColumn<QString>("genre");
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("couleur");
    for (char const * const genre : {"list", "tree", "table"}) {
        auto const ligne = [genre](char const * nom, QStyle::State etat, QColor const & couleur) {
            QTest::addRow("%s, %s", genre, nom) << QString::fromLatin1(genre) << etat << couleur;
        };
        ligne("normal", kNormal, Qt::red);
        ligne("focused", kNormal | QStyle::State_HasFocus, Qt::red);
        ligne("selected", kSelection, Qt::green);
        ligne("under the mouse", kSurvol, Qt::blue);
        ligne("selected under the mouse", kSurvol | QStyle::State_Selected, Qt::green);
    }
}

void tst_DStyleProxyItemsRiches::contextes()
{
    QFETCH(QString, genre);
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, couleur);
    auto const vue = CreeVue(genre);
    MetsRegles(*vue);
    QStyleOptionViewItem const option = DonneOption(etat);

    QImage const image = PeinsItem(*monBanc, option, vue.get());

    QCOMPARE(PrendsTexteDeLaBase(*monBanc).trimmed(), QString());
    for (QColor const & essayee : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)})
        QCOMPARE(!Etendue(image, essayee).isEmpty(), essayee == couleur);
    QVERIFY(kRect.contains(Etendue(image, couleur)));
    QCOMPARE(option.text, u"<r>Mot</r>"_s);
}

void tst_DStyleProxyItemsRiches::autresContextesSansRegle_data()
{
    QTest::addColumn<QString>("genre");
    for (char const * const genre : {"list", "tree", "table"})
        QTest::newRow(genre) << QString::fromLatin1(genre);
}

// With rules for normal items alone, the base writes the others as they stand.
void tst_DStyleProxyItemsRiches::autresContextesSansRegle()
{
    QFETCH(QString, genre);
    auto const vue = CreeVue(genre);
    MetsRegles(*vue, {{kContexteNormal, DonneRegles(u"#ff0000"_s)}});

    QVERIFY(!Etendue(PeinsItem(*monBanc, DonneOption(kNormal), vue.get()), Qt::red).isEmpty());
    QCOMPARE(PrendsTexteDeLaBase(*monBanc).trimmed(), QString());
    for (auto const etat : {kSelection, kSurvol}) {
        QVERIFY(Etendue(PeinsItem(*monBanc, DonneOption(etat), vue.get()), Qt::red).isEmpty());
        QCOMPARE(PrendsTexteDeLaBase(*monBanc), u"<r>Mot</r>"_s);
    }
}

void tst_DStyleProxyItemsRiches::propriete_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyItemsRiches::propriete()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    for (QString const & genre : {u"list"_s, u"tree"_s, u"table"_s}) {
        auto const vue = CreeVue(genre);
        MetsRegles(*vue);
        vue->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), valeur);

        QImage const image = PeinsItem(*monBanc, DonneOption(kNormal), vue.get());

        QCOMPARE(!Etendue(image, Qt::red).isEmpty(), compte);
        QCOMPARE(PrendsTexteDeLaBase(*monBanc) == u"<r>Mot</r>"_s, !compte);
    }
}

// A view without rules has no base rules either.
void tst_DStyleProxyItemsRiches::proprieteSeule()
{
    QListView vue;
    vue.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);

    QVERIFY(EstVide(PeinsItem(*monBanc, DonneOption(kNormal, u"<b>Mot</b>"_s), &vue)));
    QCOMPARE(PrendsTexteDeLaBase(*monBanc), u"<b>Mot</b>"_s);
}

void tst_DStyleProxyItemsRiches::texteSansRegle()
{
    QListView vue;
    MetsRegles(vue);
    for (QString const & texte : {u"Mot"_s, u"a < b"_s, u"<z>Mot</z>"_s, u"<z>Mot"_s, QString()}) {
        QVERIFY(EstVide(PeinsItem(*monBanc, DonneOption(kNormal, texte), &vue)));
        QCOMPARE(PrendsTexteDeLaBase(*monBanc), texte);
    }
}

void tst_DStyleProxyItemsRiches::fonctionVide()
{
    QListView vue;
    MetsRegles(vue, {{kContexteNormal, {{UniChaine("r"), RegleTexteRiche()}}}});

    QVERIFY(EstVide(PeinsItem(*monBanc, DonneOption(kNormal), &vue)));
    QCOMPARE(PrendsTexteDeLaBase(*monBanc), u"<r>Mot</r>"_s);
}

void tst_DStyleProxyItemsRiches::couleurDuTexte_data()
{
    QTest::addColumn<QString>("genre");
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("couleur");
    QColor const texte(1, 2, 130);
    QColor const enValeur(130, 2, 1);
    QColor const grise(1, 130, 2);
    for (char const * const genre : {"list", "tree"}) {
        QString const nom = QString::fromLatin1(genre);
        QTest::addRow("%s, normal", genre) << nom << kNormal << texte;
        // On a pale overlay, and not on the colour of the selection.
        QTest::addRow("%s, selected", genre) << nom << kSelection << texte;
        QTest::addRow("%s, disabled", genre) << nom << QStyle::State() << grise;
    }
    QTest::newRow("table, normal") << u"table"_s << kNormal << texte;
    QTest::newRow("table, selected") << u"table"_s << kSelection << enValeur;
}

void tst_DStyleProxyItemsRiches::couleurDuTexte()
{
    QFETCH(QString, genre);
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, couleur);
    auto const vue = CreeVue(genre);
    EnsembleRegles const regles = {
        {UniChaine("r"),
         InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
             u"<b>"_s, u"</b>"_s)}};
    MetsRegles(*vue, {{kContexteNormal, regles}, {kContexteSelectionnay, regles}});
    QStyleOptionViewItem option = DonneOption(etat, u"<r>IIII</r>"_s);
    option.font.setPixelSize(36); // strokes wider than a pixel
    option.palette.setColor(QPalette::All, QPalette::Text, QColor(1, 2, 130));
    option.palette.setColor(QPalette::Disabled, QPalette::Text, QColor(1, 130, 2));
    option.palette.setColor(QPalette::All, QPalette::HighlightedText, QColor(130, 2, 1));

    QImage const image = PeinsItem(*monBanc, option, vue.get());

    for (QColor const & essayee : {QColor(1, 2, 130), QColor(130, 2, 1), QColor(1, 130, 2)})
        QCOMPARE(!Etendue(image, essayee).isEmpty(), essayee == couleur);
}

void tst_DStyleProxyItemsRiches::fontDeLItem()
{
    QListView vue;
    MetsRegles(vue);
    QStyleOptionViewItem petite = DonneOption(kNormal);
    petite.font.setPixelSize(9);

    int const largeur = Etendue(PeinsItem(*monBanc, DonneOption(kNormal), &vue), Qt::red).width();

    QCOMPARE_GT(largeur, 2 * Etendue(PeinsItem(*monBanc, petite, &vue), Qt::red).width());
}

void tst_DStyleProxyItemsRiches::placeDuTexteSimple_data()
{
    autresContextesSansRegle_data();
}

// A text whose rules take out its tags begins where Fusion writes it without them.
void tst_DStyleProxyItemsRiches::placeDuTexteSimple()
{
    QFETCH(QString, genre);
    monBanc = std::make_unique<BancStyle>(StyleEspion::kDessine);
    auto const vue = CreeVue(genre);
    EnsembleRegles const regles = {
        {UniChaine("r"),
         InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte({}, {})}};
    MetsRegles(*vue, {{kContexteNormal, regles}});

    QRect const riche = Encre(PeinsItem(*monBanc, DonneOption(kNormal), vue.get()));
    QRect const simple = Encre(PeinsItem(*monBanc, DonneOption(kNormal, u"Mot"_s), vue.get()));

    QVERIFY(!riche.isEmpty());
    for (int const ecart : {riche.left() - simple.left(), riche.right() - simple.right(),
                            riche.center().y() - simple.center().y()})
        QVERIFY2(qAbs(ecart) <= 1, qPrintable(QString::number(ecart)));
}

void tst_DStyleProxyItemsRiches::indicateurACote_data()
{
    QTest::addColumn<QString>("genre");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    for (char const * const genre : {"list", "tree", "table"}) {
        QTest::addRow("%s", genre) << QString::fromLatin1(genre) << Qt::LeftToRight;
        QTest::addRow("%s, right to left", genre) << QString::fromLatin1(genre) << Qt::RightToLeft;
    }
}

// The check stays where it is for a plain text, and the rich one is behind it.
void tst_DStyleProxyItemsRiches::indicateurACote()
{
    QFETCH(QString, genre);
    QFETCH(Qt::LayoutDirection, sens);
    monBanc = std::make_unique<BancStyle>(StyleEspion::kDessine);
    auto const vue = CreeVue(genre);
    vue->setLayoutDirection(sens);
    MetsRegles(*vue);
    auto const option = [sens](QString const & texte) {
        QStyleOptionViewItem cochable = DonneOption(kNormal, texte);
        cochable.direction = sens;
        cochable.features |= QStyleOptionViewItem::HasCheckIndicator;
        return cochable;
    };
    auto const prendsIndicateur = [this] {
        auto const appels =
            monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_IndicatorItemViewItemCheck);
        monBanc->espion->appels.clear();
        return appels.size() == 1 ? appels.first().rect : QRect();
    };

    PeinsItem(*monBanc, option(u"Mot"_s), vue.get());
    QRect const attendu = prendsIndicateur();
    QImage const image = PeinsItem(*monBanc, option(u"<r>Mot</r>"_s), vue.get());

    QVERIFY(!attendu.isEmpty());
    QCOMPARE(prendsIndicateur(), attendu);
    QRect const rouge = Etendue(image, Qt::red);
    QVERIFY(!rouge.isEmpty());
    if (sens == Qt::LeftToRight)
        QCOMPARE_GT(rouge.left(), attendu.right());
    else
        QCOMPARE_LT(rouge.right(), attendu.left());
}

void tst_DStyleProxyItemsRiches::deDroiteAGauche_data()
{
    autresContextesSansRegle_data();
}

// The text begins as far from the right edge as otherwise from the left one.
void tst_DStyleProxyItemsRiches::deDroiteAGauche()
{
    QFETCH(QString, genre);
    auto const vue = CreeVue(genre);
    MetsRegles(*vue);
    QStyleOptionViewItem option = DonneOption(kNormal);
    QRect const aGauche = Etendue(PeinsItem(*monBanc, option, vue.get()), Qt::red);
    vue->setLayoutDirection(Qt::RightToLeft);
    option.direction = Qt::RightToLeft;

    QRect const aDroite = Etendue(PeinsItem(*monBanc, option, vue.get()), Qt::red);

    QVERIFY(!aGauche.isEmpty());
    QCOMPARE_LE(aGauche.left() - kRect.left(), 8);
    QCOMPARE(kRect.right() - aDroite.right(), aGauche.left() - kRect.left());
}

void tst_DStyleProxyItemsRiches::baliseNonFermee_data()
{
    autresContextesSansRegle_data();
}

void tst_DStyleProxyItemsRiches::baliseNonFermee()
{
    QFETCH(QString, genre);
    auto const vue = CreeVue(genre);
    MetsRegles(*vue);
    QStyleOptionViewItem const option = DonneOption(kNormal, u"<r>Mot"_s);
    QStyleOptionViewItem iconique(option);
    iconique.features |= QStyleOptionViewItem::HasCheckIndicator;
    QRect const texteAvant =
        monBanc->style.subElementRect(QStyle::SE_ItemViewItemText, &iconique, vue.get());
    QPen const plume(Qt::green, 3.0);

    Peins(kTaille, [&](QPainter & peintre) {
        peintre.setPen(plume);
        CaptureErreurs const erreurs;
        QVERIFY_THROWS_EXCEPTION(
            InterpreteurChaineSemantiqueErreur,
            monBanc->style.drawControl(QStyle::CE_ItemViewItem, &option, &peintre, vue.get()));
        QCOMPARE(erreurs.Texte(), u"<r>Mot\n"_s);
        QCOMPARE(peintre.pen(), plume);
        QVERIFY(peintre.worldTransform().isIdentity());
        QVERIFY(!peintre.testRenderHint(QPainter::Antialiasing));
    });

    // As if nothing had been drawn.
    QCOMPARE(monBanc->style.subElementRect(QStyle::SE_ItemViewItemText, &iconique, vue.get()),
             texteAvant);
    QVERIFY(!Etendue(PeinsItem(*monBanc, DonneOption(kNormal), vue.get()), Qt::red).isEmpty());
}

void tst_DStyleProxyItemsRiches::baliseNonFermeeMesuree()
{
    QListView vue;
    MetsRegles(vue);
    QStyleOptionViewItem const option = DonneOption(kNormal, u"<r>Mot"_s);
    CaptureErreurs const erreurs;
    QVERIFY_THROWS_EXCEPTION(
        InterpreteurChaineSemantiqueErreur,
        monBanc->style.sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(60, 20), &vue));
    QCOMPARE(erreurs.Texte(), u"<r>Mot\n"_s);
    QStyleOptionViewItem const suivante = DonneOption(kNormal);
    QVERIFY(
        !monBanc->style.sizeFromContents(QStyle::CT_ItemViewItem, &suivante, QSize(60, 20), &vue)
             .isEmpty());
}

QTEST_MAIN(tst_DStyleProxyItemsRiches)
#include "tst_DStyleProxyItemsRiches.moc"

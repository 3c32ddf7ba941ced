// tests/editing/tst_DComboJetonablePeinture.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"

#include <QtTest>

#include <memory>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

namespace {

const QColor kFond(255, 250, 230);
const QColor kSelection(120, 20, 90);
const QColor kTexteSelection(250, 250, 10);
const QColor kTexteJeton(0, 112, 192);

// The block of `texte` in a field of this size without frame and margins, computed apart.
QRect CalculeBloc(QSize const & champ, QFont const & police, QString const & texte)
{
    QFontMetrics const mesures(police);
    QString const abregay = mesures.elidedText(texte, Qt::ElideRight, champ.width() - 4);
    QRect const rect = mesures.boundingRect(abregay);
    int const ajout = mesures.minLeftBearing() < 0 ? -mesures.minLeftBearing() : 0;
    int const largeur = std::min(rect.width() + ajout, champ.width() - 4);
    return {2, (champ.height() - rect.height()) / 2, largeur, rect.height()};
}

} // namespace

class tst_DComboJetonablePeinture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void blocSansFocus();
    void blocAvecFocus();
    void blocDuJeton_data();
    void blocDuJeton();
    void margesDuTexte();
    void jetonLongResteDansLeChamp_data();
    void jetonLongResteDansLeChamp();
    void lignesEtBlancs_data();
    void lignesEtBlancs();
    void eperluette();
    void soulignay();
    void soulignementPartALaSortie();
    void policeDuJeton();
    void policeDuChampAuDepart();
    void remplacementCachay();
    void deDroiteAGauche();
    void sansIconesCommeLaBase();

private:
    DComboJetonable & Cree(int largeur = 300);
    QImage Dessine() const { return monCombo->lineEdit()->grab().toImage(); }

    std::unique_ptr<DComboJetonable> monCombo;
};

void tst_DComboJetonablePeinture::init()
{
    QPalette palette;
    palette.setColor(QPalette::Base, kFond);
    palette.setColor(QPalette::Highlight, kSelection);
    palette.setColor(QPalette::HighlightedText, kTexteSelection);
    QApplication::setPalette(palette);
}

void tst_DComboJetonablePeinture::cleanup()
{
    monCombo.reset();
    QApplication::setPalette(QPalette());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

DComboJetonable & tst_DComboJetonablePeinture::Cree(int largeur)
{
    monCombo.reset(CreeSansIcones());
    monCombo->resize(largeur, 40);
    // The block of a field without the focus has the colour of the application, not its own.
    QPalette palette = monCombo->lineEdit()->palette();
    palette.setColor(QPalette::Base, Qt::white);
    monCombo->lineEdit()->setPalette(palette);
    monCombo->grab(); // laid out
    return *monCombo;
}

void tst_DComboJetonablePeinture::blocSansFocus()
{
    Cree().PrendsTexteJeton(u"MMMM"_s, {});

    QImage const image = Dessine();

    QRect const bloc = CalculeBloc(monCombo->lineEdit()->size(), QFont(), u"MMMM"_s);
    QCOMPARE(CherchePixels(image, kFond), bloc);
    QRect const lettres = CherchePixels(image, kTexteJeton);
    QVERIFY(!lettres.isEmpty());
    QVERIFY(bloc.contains(lettres));
    QCOMPARE(image.pixelColor(bloc.right() + 1, bloc.center().y()), QColor(Qt::white));
}

void tst_DComboJetonablePeinture::blocAvecFocus()
{
    Cree().PrendsTexteJeton(u"MMMM"_s, {});
    monCombo->show();
    monCombo->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(monCombo.get()));
    monCombo->setFocus();
    QTRY_VERIFY(monCombo->hasFocus());

    QImage const image = Dessine();

    QRect const bloc = CalculeBloc(monCombo->lineEdit()->size(), QFont(), u"MMMM"_s);
    QCOMPARE(CherchePixels(image, kSelection), bloc);
    QVERIFY(bloc.contains(CherchePixels(image, kTexteSelection)));
    QVERIFY(CherchePixels(image, kTexteJeton).isEmpty());
}

void tst_DComboJetonablePeinture::blocDuJeton_data()
{
    QTest::addColumn<int>("taille"); // in pixels
    QTest::addColumn<bool>("italique");
    QTest::newRow("small") << 8 << false;
    QTest::newRow("large") << 24 << false;
    QTest::newRow("slanted") << 16 << true;
    QTest::newRow("higher than the field") << 60 << false;
}

void tst_DComboJetonablePeinture::blocDuJeton()
{
    QFETCH(int, taille);
    QFETCH(bool, italique);
    // The blank keeps the letters from the edge, which shows how far the block goes.
    QFont police;
    police.setPixelSize(taille);
    police.setItalic(italique);
    Cree().PrendsPoliceJeton(police);
    monCombo->PrendsTexteJeton(u" jeton"_s, {});

    QRect const bloc = CalculeBloc(monCombo->lineEdit()->size(), police, u" jeton"_s);
    QCOMPARE(CherchePixels(Dessine(), kFond), bloc & monCombo->lineEdit()->rect());
}

void tst_DComboJetonablePeinture::margesDuTexte()
{
    Cree().PrendsTexteJeton(u"jeton"_s, {});
    QRect const sans = CherchePixels(Dessine(), kFond);

    monCombo->lineEdit()->setTextMargins(11, 5, 7, 1);

    // The height is that of the widget all the same.
    QCOMPARE(CherchePixels(Dessine(), kFond), sans.translated(11, 0));
    monCombo->PrendsTexteJeton(QString(300, u'm'), {});
    QVERIFY(CherchePixels(Dessine(), kFond).right() < monCombo->lineEdit()->width() - 7 - 2);
}

void tst_DComboJetonablePeinture::jetonLongResteDansLeChamp_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("largeur");
    QTest::newRow("one word") << QString(300, u'm') << 200;
    QTest::newRow("many words") << u"un très long jeton "_s.repeated(30) << 200;
    QTest::newRow("in a narrow field") << u"jeton"_s << 60;
    QTest::newRow("in a field of next to nothing") << u"jeton"_s << 36;
}

void tst_DComboJetonablePeinture::jetonLongResteDansLeChamp()
{
    QFETCH(QString, texte);
    QFETCH(int, largeur);
    Cree(largeur).PrendsTexteJeton(texte, {});

    QRect const bloc = CherchePixels(Dessine(), kFond);
    QVERIFY(bloc.isNull() || bloc.left() >= 2);
    QVERIFY(bloc.right() <= monCombo->lineEdit()->width() - 3);

    // The beginning is what stays.
    QImage const image = Dessine();
    monCombo->PrendsTexteJeton(texte + u"autre fin"_s, {});
    if (texte.size() > 10)
        QCOMPARE(Dessine(), image);
}

void tst_DComboJetonablePeinture::lignesEtBlancs_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("commeCelui");
    QTest::newRow("newline") << u"deux\nlignes"_s << u"deux lignes"_s;
    QTest::newRow("carriage return") << u"deux\r\nlignes"_s << u"deux lignes"_s;
    QTest::newRow("empty lines") << u"deux\n\n\nlignes"_s << u"deux lignes"_s;
    QTest::newRow("blanks") << u"deux \t  lignes"_s << u"deux lignes"_s;
    QTest::newRow("blanks and a newline") << u"deux \n lignes"_s << u"deux lignes"_s;
}

void tst_DComboJetonablePeinture::lignesEtBlancs()
{
    QFETCH(QString, texte);
    QFETCH(QString, commeCelui);
    Cree().PrendsTexteJeton(texte, {});
    QImage const image = Dessine();

    monCombo->PrendsTexteJeton(commeCelui, {});

    QCOMPARE(image, Dessine());
}

void tst_DComboJetonablePeinture::eperluette()
{
    Cree().PrendsTexteJeton(u"a&b"_s, {});
    QRect const bloc = CalculeBloc(monCombo->lineEdit()->size(), QFont(), u"a&b"_s);
    QCOMPARE(CherchePixels(Dessine(), kFond), bloc);
}

void tst_DComboJetonablePeinture::soulignay()
{
    Cree().PrendsTexteJeton(u"MMMM"_s, {});
    QImage const image = Dessine();
    QRect const bloc = CalculeBloc(monCombo->lineEdit()->size(), QFont(), u"MMMM"_s);

    Deplace(*monCombo->lineEdit(), bloc.center());
    QImage const dessus = Dessine();
    QVERIFY(dessus != image);
    QVERIFY(CherchePixels(dessus, kTexteJeton).bottom() >
            CherchePixels(image, kTexteJeton).bottom());

    for (QPoint const & dehors : {bloc.bottomRight() + QPoint(1, 0), bloc.topLeft() - QPoint(1, 0),
                                  bloc.topLeft() - QPoint(0, 1)}) {
        Deplace(*monCombo->lineEdit(), dehors);
        QCOMPARE(Dessine(), image);
    }
}

void tst_DComboJetonablePeinture::soulignementPartALaSortie()
{
    Cree().PrendsTexteJeton(u"MMMM"_s, {});
    QImage const image = Dessine();
    QPointF const dedans(8, 20);
    QEnterEvent entree(dedans, dedans, dedans);
    QApplication::sendEvent(monCombo->lineEdit(), &entree);
    QVERIFY(Dessine() != image);

    QEvent sortie(QEvent::Leave);
    QApplication::sendEvent(monCombo->lineEdit(), &sortie);

    QCOMPARE(Dessine(), image);
}

void tst_DComboJetonablePeinture::policeDuJeton()
{
    Cree().PrendsTexteJeton(u"jeton"_s, {});
    QRect const bloc = CherchePixels(Dessine(), kFond);
    QFont const police = monCombo->lineEdit()->font();
    QFont grande = police;
    grande.setPixelSize(QFontInfo(police).pixelSize() * 2);

    monCombo->PrendsPoliceJeton(grande);

    QVERIFY(CherchePixels(Dessine(), kFond).height() > bloc.height());
    QCOMPARE(monCombo->lineEdit()->font(), police); // of the token only
}

void tst_DComboJetonablePeinture::policeDuChampAuDepart()
{
    Cree().PrendsTexteJeton(u"jeton"_s, {});
    QFont grande = monCombo->font();
    grande.setPixelSize(22);

    monCombo->setFont(grande);

    QRect const bloc = CalculeBloc(monCombo->lineEdit()->size(), grande, u"jeton"_s);
    QCOMPARE(CherchePixels(Dessine(), kFond), bloc);
}

void tst_DComboJetonablePeinture::remplacementCachay()
{
    Cree().PrendsTextePlaceHolder(u"Un mot ou une catégorie"_s);
    QImage const remplacement = Dessine();
    monCombo->PrendsTextePlaceHolder({});
    QVERIFY(Dessine() != remplacement);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QImage const sans = Dessine();

    monCombo->PrendsTextePlaceHolder(u"Un mot ou une catégorie"_s);

    QCOMPARE(Dessine(), sans); // nothing is read beside the block
    monCombo->DesactiveJeton();
    QCOMPARE(Dessine(), remplacement);
}

void tst_DComboJetonablePeinture::deDroiteAGauche()
{
    Cree().PrendsTexteJeton(u"MMMM"_s, {});
    QRect const bloc = CherchePixels(Dessine(), kFond);

    monCombo->setLayoutDirection(Qt::RightToLeft);

    QCOMPARE(monCombo->lineEdit()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(CherchePixels(Dessine(), kFond), bloc); // stays at the left
    QVERIFY(bloc.contains(CherchePixels(Dessine(), kTexteJeton)));
}

void tst_DComboJetonablePeinture::sansIconesCommeLaBase()
{
    Cree();
    DComboBox base(nullptr);
    base.setEditable(true);
    base.resize(monCombo->size());
    base.lineEdit()->setPalette(monCombo->lineEdit()->palette());
    for (QString const & texte : {QString(), u"texte"_s}) {
        base.setEditText(texte);
        monCombo->setEditText(texte);
        QCOMPARE(monCombo->grab().toImage(), base.grab().toImage());
    }
}

QTEST_MAIN(tst_DComboJetonablePeinture)
#include "tst_DComboJetonablePeinture.moc"

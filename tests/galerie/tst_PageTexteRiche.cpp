// tests/galerie/tst_PageTexteRiche.cpp
#include "PageTexteRiche.h"

#include "DessinTexteRiche.h"
#include "JetonsTexteRiche.h"
#include "RangsRiches.h"

#include "controls/DLabelElision.h"
#include "editing/DLineEdit.h"
#include "editing/DLineEditRaccourci.h"
#include "foundation/TexteRiche.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QStringList DonneColonne(QWidget const & page, QString const & table, int colonne)
{
    QStringList textes;
    auto const & modele = *page.findChild<QTableView *>(table)->model();
    for (int rang = 0; rang < modele.rowCount(); ++rang)
        textes.append(modele.index(rang, colonne).data().toString());
    return textes;
}

QList<QImage> Photographie(QWidget const & page)
{
    QList<QImage> images;
    for (DessinTexteRiche * const dessin : page.findChildren<DessinTexteRiche *>())
        images.append(dessin->grab().toImage());
    return images;
}

} // namespace

class tst_PageTexteRiche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void jetons_data();
    void jetons();
    void effets_data();
    void effets();
    void formats();
    void descriptionDuFormat_data();
    void descriptionDuFormat();
    void dessinsSuiventLaSaisie();
    void largeurElideLesEtiquettes();
    void champEnErreur();
    void raccourciEnregistray();
    void capitales();
    void listeDeCentMilleRangs();
    void rangsAccessibles();
    void delegueDessineSansLesBalises();
};

void tst_PageTexteRiche::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageTexteRiche::jetons_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("jetons");
    QTest::newRow("empty") << QString() << QStringList{};
    QTest::newRow("no tag") << u"abc"_s << QStringList{u"abc"_s};
    QTest::newRow("an element") << u"a<b>c</b>"_s
                                << QStringList{u"a"_s, u"<b>"_s, u"c"_s, u"</b>"_s};
    QTest::newRow("a lone bracket") << u"a < b"_s << QStringList{u"a "_s, u"< b"_s};
    QTest::newRow("a bracket before a tag") << u"< <i>"_s << QStringList{u"< "_s, u"<i>"_s};
    QTest::newRow("a bracket at the end") << u"a<"_s << QStringList{u"a"_s, u"<"_s};
    QTest::newRow("closing bracket in text") << u"a>b"_s << QStringList{u"a>b"_s};
}

void tst_PageTexteRiche::jetons()
{
    QFETCH(QString, texte);
    PageTexteRiche const page;

    page.findChild<QLineEdit *>(u"texteBalisay"_s)->setText(texte);

    QTEST(DonneColonne(page, u"jetons"_s, 0), "jetons");
}

void tst_PageTexteRiche::effets_data()
{
    QTest::addColumn<QString>("jeton");
    QTest::addColumn<QString>("effet");
    QTest::newRow("text") << u"abc"_s << u"Texte"_s;
    QTest::newRow("lone bracket") << u"< abc"_s << u"Texte"_s;
    QTest::newRow("bold") << u"<b>"_s << u"Gras"_s;
    QTest::newRow("bold with an attribute is unknown") << u"<b x>"_s << u"Sans effet"_s;
    QTest::newRow("highlight") << u"<span class=\"surlignement\">"_s << u"Surlignement"_s;
    QTest::newRow("another span") << u"<span>"_s << u"Sans effet"_s;
    QTest::newRow("colour") << u"<font color =\"#123456\">"_s << u"Couleur du texte"_s;
    QTest::newRow("end") << u"</b>"_s << u"Fin"_s;
    QTest::newRow("end of a name") << u"</pn>"_s << u"Fin du nom, suivie d’un losange"_s;
}

void tst_PageTexteRiche::effets()
{
    QFETCH(QString, jeton);
    QList<JetonTexteRiche> const jetons = DonneJetons(jeton);
    QCOMPARE(jetons.size(), 1);
    QTEST(jetons.first().effet, "effet");
}

void tst_PageTexteRiche::formats()
{
    PageTexteRiche const page;

    page.findChild<QLineEdit *>(u"texteBalisay"_s)->setText(u"ab<b>cd</b><i>ouvert"_s);

    QCOMPARE(DonneColonne(page, u"formats"_s, 0), QStringList{u"2"_s});
    QCOMPARE(DonneColonne(page, u"formats"_s, 1), QStringList{u"2"_s});
    QCOMPARE(DonneColonne(page, u"formats"_s, 2), QStringList{u"cd"_s});
    QVERIFY(DonneColonne(page, u"formats"_s, 3).first().contains(u"gras"_s));
}

void tst_PageTexteRiche::descriptionDuFormat_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("description");
    QTest::newRow("italic") << u"<i>a</i>"_s << u"italique"_s;
    QTest::newRow("superscript") << u"<sup>a</sup>"_s << u"exposant"_s;
    QTest::newRow("subscript") << u"<sub>a</sub>"_s << u"indice"_s;
    QTest::newRow("colour") << u"<font color =\"#123456\">a</font>"_s << u"#123456"_s;
    QTest::newRow("highlight") << u"<span class=\"surlignement\">a</span>"_s << u"#fafa00"_s;
}

void tst_PageTexteRiche::descriptionDuFormat()
{
    QFETCH(QString, texte);
    QFETCH(QString, description);
    auto const lu = RoutinesGeneralesQt::DonneTexteAvecFormat(texte, QFont());
    QCOMPARE(lu.formats.size(), 1);
    QVERIFY(DecrisFormat(lu.formats.first().format).contains(description));
}

void tst_PageTexteRiche::dessinsSuiventLaSaisie()
{
    PageTexteRiche const page;
    QList<QImage> const avant = Photographie(page);
    QCOMPARE(avant.size(), 4);

    page.findChild<QLineEdit *>(u"source"_s)->setText(u"Autre"_s);

    QList<QImage> const autreSource = Photographie(page);
    for (int i = 0; i < avant.size(); ++i)
        QCOMPARE(autreSource.at(i) == avant.at(i), i < 2); // two of the forms show no source

    page.findChild<QLineEdit *>(u"texteBalisay"_s)->setText(u"<b>Autre</b>"_s);

    QList<QImage> const autreTexte = Photographie(page);
    for (int i = 0; i < avant.size(); ++i)
        QVERIFY(autreTexte.at(i) != autreSource.at(i));
}

void tst_PageTexteRiche::largeurElideLesEtiquettes()
{
    PageTexteRiche const page;
    auto * const largeur = page.findChild<QSlider *>(u"largeur"_s);

    largeur->setValue(largeur->minimum()); // less than a word

    QList<DLabelElision *> const labels = page.findChildren<DLabelElision *>();
    QCOMPARE(labels.size(), 3);
    for (DLabelElision const * const label : labels) {
        QCOMPARE(label->width(), largeur->minimum());
        QCOMPARE(label->EstEliday(), label->DonneModeElision() != DLabelElision::kSansElision);
    }
    for (DessinTexteRiche const * const dessin : page.findChildren<DessinTexteRiche *>())
        QCOMPARE(dessin->width(), largeur->minimum());
}

void tst_PageTexteRiche::champEnErreur()
{
    PageTexteRiche const page;
    auto const * const champ = page.findChild<DLineEdit *>();
    QCOMPARE(champ->property("erreur"), QVariant(true));

    page.findChild<QCheckBox *>(u"erreur"_s)->setChecked(false);

    QCOMPARE(champ->property("erreur"), QVariant(false));
}

void tst_PageTexteRiche::raccourciEnregistray()
{
    PageTexteRiche page;
    auto * const champ = page.findChild<DLineEditRaccourci *>(u"raccourci"_s);
    auto const montre = [&page](QString const & texte) {
        for (QLabel const * const etiquette : page.findChildren<QLabel *>())
            if (etiquette->text().endsWith(texte))
                return true;
        return false;
    };

    QTest::keyClick(champ, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);

    QString const attendu = QKeySequence(u"Ctrl+Shift+A"_s).toString(QKeySequence::NativeText);
    QCOMPARE(champ->text(), attendu);
    QVERIFY(montre(attendu));
}

void tst_PageTexteRiche::capitales()
{
    PageTexteRiche const page;
    auto * const champ = page.findChild<QLineEdit *>(u"majuscules"_s);

    QTest::keyClicks(champ, u"abc1d"_s);

    QCOMPARE(champ->text(), u"ABCD"_s);
}

void tst_PageTexteRiche::listeDeCentMilleRangs()
{
    PageTexteRiche page;
    auto * const liste = page.findChild<QListView *>(u"listeRiche"_s);
    QCOMPARE(liste->model()->rowCount(), 100'000);
    QVERIFY(liste->uniformItemSizes());
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QImage const debut = liste->viewport()->grab().toImage();

    liste->scrollToBottom();

    QVERIFY(liste->visualRect(liste->model()->index(RangsRiches::kRangs - 1, 0))
                .intersects(liste->viewport()->rect()));
    QVERIFY(liste->viewport()->grab().toImage() != debut);
}

void tst_PageTexteRiche::rangsAccessibles()
{
    RangsRiches const rangs;
    QCOMPARE(rangs.rowCount(rangs.index(0, 0)), 0);
    QVERIFY(!rangs.data({}).isValid());
    QVERIFY(!rangs.data(rangs.index(0, 0), Qt::DecorationRole).isValid());
    for (int const rang : {0, 1, 2, 3, RangsRiches::kRangs - 1}) {
        QModelIndex const index = rangs.index(rang, 0);
        QString const numero = QLocale().toString(rang + 1);
        QVERIFY(index.data().toString().contains(u'<'));
        QVERIFY(index.data().toString().contains(numero));
        QVERIFY(index.data(Qt::AccessibleTextRole).toString().contains(numero));
        QVERIFY(!index.data(Qt::AccessibleTextRole).toString().contains(u'<'));
    }
}

void tst_PageTexteRiche::delegueDessineSansLesBalises()
{
    RangsRiches const rangs;
    DelegueRangRiche const delegue;
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 400, 24);
    option.palette = QPalette(Qt::white);
    auto const dessine = [&](QModelIndex const & index) {
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter peintre(&image);
        peintre.setPen(Qt::red);
        delegue.paint(&peintre, option, index);
        return std::pair(image, peintre.pen().color());
    };
    QImage blanc(option.rect.size(), QImage::Format_RGB32);
    blanc.fill(Qt::white);

    auto const [image, plume] = dessine(rangs.index(0, 0));

    QVERIFY(image != blanc);
    QCOMPARE(plume, QColor(Qt::red)); // as it was
    QVERIFY(dessine(rangs.index(1, 0)).first != image);
    QVERIFY(delegue.sizeHint(option, rangs.index(0, 0)).height() >=
            option.fontMetrics.lineSpacing());
}

QTEST_MAIN(tst_PageTexteRiche)
#include "tst_PageTexteRiche.moc"

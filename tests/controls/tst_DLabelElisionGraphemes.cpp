// tests/controls/tst_DLabelElisionGraphemes.cpp
#include "controls/DLabelElision.h"
#include "controls/ElidedLabel.h"

#include "controls/TexteRecu.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kGraine = 5; // any: the same texts at each run
constexpr int kTextes = 60;
constexpr int kLargeurMax = 400; // logical pixels, wider than most of the texts

// Left-to-right scripts alone: the pieces of a line are then drawn in the order of the text.
QString TexteAuHasard(QRandomGenerator & hasard)
{
    static QStringList const signes = {
        u"a"_s,
        u"W"_s,
        u"i"_s,
        u" "_s,
        u"/"_s,
        u"é"_s,
        u"e\u0301"_s,              // a mark that combines
        u"o\u0323\u0302"_s,        // two of them
        u"😀"_s,                    // a pair of surrogates
        u"👍\U0001F3FD"_s,          // a modifier of skin
        u"\U0001F1EB\U0001F1F7"_s, // a flag: two letters of a region
        u"\u1112\u1161\u11ab"_s,   // a syllable in three parts
        u"𝔄"_s,
    };
    QString texte;
    int const taille = hasard.bounded(5, 40);
    for (int i = 0; i < taille; ++i)
        texte += signes.at(hasard.bounded(static_cast<int>(signes.size())));
    return texte + u'.'; // blanks at the end of a line are not drawn
}

bool EstLimite(QString const & texte, qsizetype position)
{
    QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, texte);
    limites.setPosition(position);
    return limites.isAtBoundary();
}

} // namespace

class tst_DLabelElisionGraphemes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void portionDuTexte_data();
    void portionDuTexte();
    void texteDonnay();
    void derniereLigne();
};

void tst_DLabelElisionGraphemes::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElisionGraphemes::portionDuTexte_data()
{
    QTest::addColumn<DLabelElision::Elision>("mode");
    QTest::newRow("the beginning stays") << DLabelElision::kElisionFin;
    QTest::newRow("the end stays") << DLabelElision::kElisionDebut;
}

void tst_DLabelElisionGraphemes::portionDuTexte()
{
    QFETCH(DLabelElision::Elision, mode);
    bool const debutReste = mode == DLabelElision::kElisionFin;
    QRandomGenerator hasard(kGraine);
    int portions = 0;
    for (int i = 0; i < kTextes; ++i) {
        QString const texte = TexteAuHasard(hasard);
        DLabelElision label(texte, nullptr);
        label.PrendsModeElision(mode);
        for (int largeur = 0; largeur < kLargeurMax; largeur += 7) {
            label.resize(largeur, 20);
            if (!label.EstEliday())
                continue;
            TexteRecu recu;
            QPainter peintre(&recu);
            label.render(&peintre, QPoint(), QRegion(), QFlags<QWidget::RenderFlag>());
            peintre.end();

            QString const dessinay = recu.DonneTexte();
            QCOMPARE(dessinay.count(u'…'), 1);
            QString const portion = QString(dessinay).remove(u'…');
            if (portion.isEmpty())
                continue; // no room for more than the ellipsis
            ++portions;
            QVERIFY2(debutReste ? texte.startsWith(portion) : texte.endsWith(portion),
                     qPrintable(texte + u" -> "_s + portion));
            qsizetype const coupure = debutReste ? portion.size() : texte.size() - portion.size();
            QVERIFY2(EstLimite(texte, coupure), qPrintable(texte + u" -> "_s + portion));
        }
    }
    QVERIFY(portions > kTextes);
}

void tst_DLabelElisionGraphemes::texteDonnay()
{
    QRandomGenerator hasard(kGraine);
    int portions = 0;
    for (int i = 0; i < kTextes; ++i) {
        QString const texte = TexteAuHasard(hasard);
        DLabelElision label(texte, nullptr);
        label.PrendsModeElision(DLabelElision::kElisionFin);
        label.resize(label.sizeHint().width() / 2, 20);
        QVERIFY(label.EstEliday());
        for (int largeur = 0; largeur < kLargeurMax; largeur += 7) {
            QString const portion = label.DonneTexteAvecElision(largeur).chopped(3);
            QVERIFY(texte.startsWith(portion));
            QVERIFY(EstLimite(texte, portion.size()));
            portions += !portion.isEmpty() && portion != texte;
        }
    }
    QVERIFY(portions > kTextes);
}

void tst_DLabelElisionGraphemes::derniereLigne()
{
    QRandomGenerator hasard(kGraine);
    int portions = 0;
    for (int i = 0; i < kTextes; ++i) {
        QString const texte = TexteAuHasard(hasard).remove(u' ');
        ElidedLabel label(texte);
        for (int largeur = 20; largeur < kLargeurMax; largeur += 7) {
            label.resize(largeur, 1); // room for one line alone, which is the last
            TexteRecu recu;
            label.render(&recu, QPoint(), QRegion(), QWidget::RenderFlags());
            QString const dessinay = recu.DonneTexte();
            if (!dessinay.contains(u'…'))
                continue;
            QString const portion = dessinay.chopped(1);
            portions += !portion.isEmpty();
            QVERIFY2(texte.startsWith(portion), qPrintable(texte + u" -> "_s + portion));
            QVERIFY2(EstLimite(texte, portion.size()), qPrintable(texte + u" -> "_s + portion));
        }
    }
    QVERIFY(portions > kTextes);
}

QTEST_MAIN(tst_DLabelElisionGraphemes)
#include "tst_DLabelElisionGraphemes.moc"

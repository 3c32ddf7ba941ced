// tests/controls/tst_DBoutonAbstraitDisposition.cpp
#include "controls/EssaisBouton.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

class tst_DBoutonAbstraitDisposition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void elements_data();
    void elements();
    void uneLigneTantQuIlYADeLaPlace_data();
    void uneLigneTantQuIlYADeLaPlace();
    void plusieursLignesQuandElleManque_data();
    void plusieursLignesQuandElleManque();
    void hauteurSuitLaLargeur_data();
    void hauteurSuitLaLargeur();
    void dansUneFenetre_data();
    void dansUneFenetre();
    void retourDonnay_data();
    void retourDonnay();
    void etirement_data();
    void etirement();
    void policePlusGrande_data();
    void policePlusGrande();
    void droiteAGauche_data();
    void droiteAGauche();
    void sansTexte_data();
    void sansTexte();
};

namespace {

QString const & TexteLong()
{
    static QString const texte =
        u"Un texte bien plus long que les autres, avec <b>du gras</b> et un <a href='x'>lien</a>, "
        "qui passe à la ligne s'il le faut et seulement s'il le faut"_s;
    return texte;
}

// A hidden widget leaves its layout as it is.
void Dispose(DBoutonAbstrait & controle, QSize const & taille)
{
    controle.resize(taille);
    controle.layout()->setGeometry(controle.rect());
}

int HauteurDUneLigne(eGenre genre)
{
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"Un <b>mot</b>"_s));
    return Libelle(*controle).sizeHint().height();
}

} // namespace

void tst_DBoutonAbstraitDisposition::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonAbstraitDisposition::elements_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::elements()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    QVERIFY(controle->hasMouseTracking());
    auto * const disposition = qobject_cast<QHBoxLayout *>(controle->layout());
    QVERIFY(disposition);
    QCOMPARE(disposition->contentsMargins(), QMargins());
    QCOMPARE(disposition->count(), 3);
    QCOMPARE(disposition->itemAt(0)->widget(), &Indicateur(*controle));
    QCOMPARE(disposition->itemAt(1)->widget(), &Libelle(*controle));
    QVERIFY(disposition->itemAt(2)->spacerItem());
    QCOMPARE(disposition->stretch(2), 1);
    QCOMPARE(disposition->stretch(0) + disposition->stretch(1), 0);
    QCOMPARE(Libelle(*controle).textFormat(), Qt::RichText);
}

void tst_DBoutonAbstraitDisposition::uneLigneTantQuIlYADeLaPlace_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::uneLigneTantQuIlYADeLaPlace()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, TexteLong()));
    QLabel const & libelle = Libelle(*controle);
    QCOMPARE(libelle.sizeHint().height(), HauteurDUneLigne(genre));
    QLabel sansRetour(TexteLong());
    sansRetour.setTextFormat(Qt::RichText);
    QCOMPARE(libelle.sizeHint(), sansRetour.sizeHint());
    for (int const surplus : {0, 1, 1000}) {
        Dispose(*controle, controle->sizeHint() + QSize(surplus, 0));
        QCOMPARE(libelle.width(), libelle.sizeHint().width());
        QCOMPARE(libelle.heightForWidth(libelle.width()), HauteurDUneLigne(genre));
    }
}

void tst_DBoutonAbstraitDisposition::plusieursLignesQuandElleManque_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::plusieursLignesQuandElleManque()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, TexteLong()));
    QLabel const & libelle = Libelle(*controle);
    QVERIFY(libelle.wordWrap());
    QVERIFY(controle->minimumSizeHint().width() < controle->sizeHint().width() / 2);
    for (int largeur = controle->minimumSizeHint().width(); largeur < controle->sizeHint().width();
         largeur += 37) {
        Dispose(*controle, {largeur, controle->heightForWidth(largeur)});
        QVERIFY(controle->rect().contains(libelle.geometry()));
        QVERIFY(libelle.height() >= libelle.heightForWidth(libelle.width()));
        QVERIFY(libelle.height() >= 2 * HauteurDUneLigne(genre) - 2);
        QVERIFY(!libelle.geometry().intersects(Indicateur(*controle).geometry()));
    }
}

void tst_DBoutonAbstraitDisposition::hauteurSuitLaLargeur_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::hauteurSuitLaLargeur()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, TexteLong()));
    QVERIFY(controle->hasHeightForWidth());
    int const large = controle->sizeHint().width();
    QCOMPARE(controle->heightForWidth(large), controle->sizeHint().height());
    QCOMPARE(controle->heightForWidth(10 * large), controle->sizeHint().height());
    int const etroite = controle->heightForWidth(large / 3);
    QVERIFY(etroite > controle->heightForWidth(large));
    QVERIFY(controle->heightForWidth(large / 5) > etroite);
}

void tst_DBoutonAbstraitDisposition::dansUneFenetre_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::dansUneFenetre()
{
    QFETCH(eGenre, genre);
    QWidget fenetre;
    QVBoxLayout disposition(&fenetre);
    DBoutonAbstrait * const controle = Cree(genre, TexteLong());
    disposition.addWidget(controle);
    disposition.addStretch();
    fenetre.show();
    int const largeur = controle->sizeHint().width() / 3;
    fenetre.resize(largeur, 600);
    QTRY_COMPARE(fenetre.width(), largeur);
    QTRY_VERIFY(Libelle(*controle).height() >
                2 * HauteurDUneLigne(genre)); // three lines at the least
    QCOMPARE(controle->height(), controle->heightForWidth(controle->width()));
}

void tst_DBoutonAbstraitDisposition::retourDonnay_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::retourDonnay()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const une(Cree(genre, u"a b"_s));
    std::unique_ptr<DBoutonAbstrait> const deux(Cree(genre, u"a<br>b"_s));
    QVERIFY(Libelle(*deux).sizeHint().height() > Libelle(*une).sizeHint().height());
    QVERIFY(deux->sizeHint().width() < une->sizeHint().width());
}

void tst_DBoutonAbstraitDisposition::etirement_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::etirement()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    Dispose(*controle, controle->sizeHint());
    QRect const indicateur = Indicateur(*controle).geometry();
    QRect const libelle = Libelle(*controle).geometry();
    QCOMPARE(indicateur.left(), 0);
    QVERIFY(libelle.left() > indicateur.right());
    Dispose(*controle, controle->sizeHint() + QSize(500, 0));
    QCOMPARE(Indicateur(*controle).geometry(), indicateur);
    QCOMPARE(Libelle(*controle).geometry(), libelle);
}

void tst_DBoutonAbstraitDisposition::policePlusGrande_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::policePlusGrande()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, TexteLong()));
    QSize const avant = controle->sizeHint();
    QFont police = controle->font();
    police.setPixelSize(60);
    controle->setFont(police);
    QVERIFY(controle->sizeHint().width() > 2 * avant.width());
    QVERIFY(controle->sizeHint().height() > 2 * avant.height());
    Dispose(*controle, controle->sizeHint());
    QLabel const & libelle = Libelle(*controle);
    QCOMPARE(libelle.heightForWidth(libelle.width()), libelle.sizeHint().height());
}

void tst_DBoutonAbstraitDisposition::droiteAGauche_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::droiteAGauche()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    controle->setLayoutDirection(Qt::RightToLeft);
    Dispose(*controle, {400, 40});
    QCOMPARE(Indicateur(*controle).geometry().right(), 399);
    QVERIFY(Libelle(*controle).geometry().right() < Indicateur(*controle).geometry().left());
}

void tst_DBoutonAbstraitDisposition::sansTexte_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitDisposition::sansTexte()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, QString()));
    QCOMPARE(controle->sizeHint(), Indicateur(*controle).sizeHint());
}

QTEST_MAIN(tst_DBoutonAbstraitDisposition)
#include "tst_DBoutonAbstraitDisposition.moc"

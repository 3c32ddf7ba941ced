// dialogs/tst_DAlerteInfoMaison.cpp
#include "dialogs/DAlerteInfoMaison.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QColor Couleur(DAlerteInfoMaison const & info)
{
    return info.DonneIcone().Prete(8, 8).toImage().pixelColor(4, 4);
}

DAlerteInfoMaison Fabrique(QColor const & couleur)
{
    QPixmap image(8, 8);
    image.fill(couleur);
    return {image, u"Message"_s, u"Note"_s, u"Titre"_s};
}

} // namespace

class tst_DAlerteInfoMaison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textesDansLOrdreDeLaBase();
    void titreVideParDefaut();
    void gardeUneCopieDeLImage();
    void copieEtAffectation();
    void detruiteParSaBase();
    void sansImage();
};

void tst_DAlerteInfoMaison::textesDansLOrdreDeLaBase()
{
    DAlerteInfoMaison const info = Fabrique(Qt::red);
    QCOMPARE(info.DonneTypeDialogue(), DAlerteInfo::kMaison);
    QCOMPARE(QString(info.DonneMessage()), u"Message"_s);
    QCOMPARE(QString(info.DonneNote()), u"Note"_s);
    QCOMPARE(QString(info.DonneTitreFenetre()), u"Titre"_s);
    QVERIFY(!info.EstTitreParDefaut());
}

void tst_DAlerteInfoMaison::titreVideParDefaut()
{
    QVERIFY(DAlerteInfoMaison(ImageCommune(), u"Message"_s, {}, {}).EstTitreParDefaut());
}

void tst_DAlerteInfoMaison::gardeUneCopieDeLImage()
{
    QPixmap image(8, 8);
    image.fill(Qt::red);
    DAlerteInfoMaison const info(image, u"Message"_s, {}, {});
    image.fill(Qt::blue);
    QCOMPARE(Couleur(info), QColor(Qt::red));
}

void tst_DAlerteInfoMaison::copieEtAffectation()
{
    auto source = std::make_unique<DAlerteInfoMaison>(Fabrique(Qt::red));
    source->texteRiche = true;
    DAlerteInfoMaison const copie(*source);
    DAlerteInfoMaison affectee = Fabrique(Qt::blue);
    affectee = *source;
    source.reset();
    for (DAlerteInfoMaison const * const info : {&copie, &std::as_const(affectee)}) {
        QCOMPARE(Couleur(*info), QColor(Qt::red));
        QCOMPARE(QString(info->DonneMessage()), u"Message"_s);
        QVERIFY(info->texteRiche);
    }
}

void tst_DAlerteInfoMaison::detruiteParSaBase()
{
    std::unique_ptr<DAlerteInfo> const info =
        std::make_unique<DAlerteInfoMaison>(Fabrique(Qt::red));
    QVERIFY(dynamic_cast<DAlerteInfoMaison const *>(info.get()));
}

void tst_DAlerteInfoMaison::sansImage()
{
    DAlerteInfoMaison const info(ImageCommune(), u"Message"_s, {}, {});
    QVERIFY(info.DonneIcone().EstNulle());
}

QTEST_MAIN(tst_DAlerteInfoMaison)
#include "tst_DAlerteInfoMaison.moc"

// galerie/Captures.cpp
#include "Captures.h"

#include "ChargementMots.h"
#include "FenetreGalerie.h"
#include "Langues.h"
#include "Pages.h"
#include "ThemeGalerie.h"
#include "TraductionGalerie.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QLineEdit>
#include <QPixmap>
#include <QSaveFile>
#include <QToolButton>
#include <QVariant>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDelaiFondus = 500;         // ms; Qt's own takes 160
constexpr int kDelaiChargements = 10'000; // ms; hundredths of a second, but for a busy machine

// The button that clears a field fades in: how far it got would be in the picture.
bool FondusEnCours(QWidget const & fenetre)
{
    auto const boutons = fenetre.findChildren<QToolButton *>();
    return std::any_of(boutons.begin(), boutons.end(), [](QToolButton const * bouton) {
        auto const * const champ = qobject_cast<QLineEdit *>(bouton->parent());
        return champ && bouton->isVisible() && !champ->text().isEmpty() &&
               bouton->property("opacity").toReal() < 1;
    });
}

// A page without its words would be in the picture.
bool ChargementsEnCours(QWidget const & fenetre)
{
    auto const chargements = fenetre.findChildren<ChargementMots *>();
    return std::any_of(chargements.begin(), chargements.end(),
                       [](ChargementMots const * chargement) { return !chargement->DonneTable(); });
}

// Pictures are named "01-theme-fr.png" and "01-theme-sombre-fr.png".
class Album
{
public:
    Album(FenetreGalerie & fenetre, QString const & dossier)
        : maFenetre(fenetre)
        , monDossier(dossier)
    {
        monSucces = monDossier.mkpath(u"."_s);
    }

    /// -1 for all pages.
    void Photographie(int page, QString const & variante, QString const & langue)
    {
        for (int i = 0; i < DonnePages().size(); ++i)
            if (page < 0 || i == page)
                PhotographiePage(i, variante, langue);
    }

    bool EcrisIndex()
    {
        QSaveFile fichier(monDossier.filePath(u"index.html"_s));
        QByteArray const page =
            // The language of the page, whose only own text is a name; each figure tells its own.
            u"<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
            "<title>libFabrelGui</title>\n"
            "<style>body { font-family: sans-serif; margin: 2em } img { max-width: 100%; "
            "border: 1px solid #bbb } figure { margin: 0 0 2em }</style></head>\n"
            "<body><h1>libFabrelGui</h1>\n%1</body></html>\n"_s.arg(mesFigures)
                .toUtf8();
        monSucces = monSucces && fichier.open(QIODevice::WriteOnly) &&
                    fichier.write(page) == page.size() && fichier.commit();
        return monSucces;
    }

private:
    void PhotographiePage(int page, QString const & variante, QString const & langue)
    {
        DescriptionPage const & description = DonnePages().at(page);
        QString const nom = u"%1-%2%3-%4.png"_s.arg(page + 1, 2, 10, QChar(u'0'))
                                .arg(description.nom, variante, langue);
        maFenetre.MontreSeule(page); // the same picture, whatever others are taken
        QDeadlineTimer const delaiChargements(kDelaiChargements);
        while (ChargementsEnCours(maFenetre) && !delaiChargements.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, kDelaiFondus);
        // Layouts settle on events, and what they show may ask for more.
        for (int tour = 0; tour < 2; ++tour)
            QCoreApplication::processEvents();
        QDeadlineTimer const delai(kDelaiFondus);
        while (FondusEnCours(maFenetre) && !delai.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, kDelaiFondus);
        monSucces = maFenetre.grab().save(monDossier.filePath(nom)) && monSucces;
        mesFigures += u"<figure lang=\"%1\"><figcaption>%2</figcaption><img src=\"%3\" alt=\"%2\" "
                      "width=\"%4\"></figure>\n"_s
                          .arg(langue, TraductionGalerie(description.titre).toHtmlEscaped(), nom)
                          .arg(maFenetre.width());
    }

    FenetreGalerie & maFenetre;
    QDir monDossier;
    QString mesFigures;
    bool monSucces = true;
};

} // namespace

bool EcrisCaptures(FenetreGalerie & fenetre, ThemeGalerie & theme, QString const & dossier,
                   int page)
{
    Album album(fenetre, dossier);
    bool applique = true;
    // As if it were on the screen: some widgets lay out nothing while they are hidden.
    fenetre.setAttribute(Qt::WA_DontShowOnScreen);
    fenetre.show();
    for (DescriptionLangue const & langue : DonneLangues()) {
        if (langue.langue == kLangueAnglaisCanada)
            continue; // its pictures would be those of English
        fenetre.MetsLangue(langue.langue);
        album.Photographie(page, QString(), langue.code);

        theme.Assombris();
        applique = theme.Applique() && applique;
        fenetre.RefaisPages();
        album.Photographie(page, u"-sombre"_s, langue.code);
        theme.Reinitialise();
        applique = theme.Applique() && applique;
    }
    return album.EcrisIndex() && applique;
}

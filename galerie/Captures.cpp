// galerie/Captures.cpp
#include "Captures.h"

#include "FenetreGalerie.h"
#include "Pages.h"
#include "ThemeGalerie.h"
#include "TraductionGalerie.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QSaveFile>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

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

    void Photographie(int page, QString const & variante, QString const & langue)
    {
        DescriptionPage const & description = DonnePages().at(page);
        QString const nom = u"%1-%2%3-%4.png"_s.arg(page + 1, 2, 10, QChar(u'0'))
                                .arg(description.nom, variante, langue);
        maFenetre.MontrePage(page);
        QCoreApplication::processEvents(); // layouts settle on events
        monSucces = maFenetre.grab().save(monDossier.filePath(nom)) && monSucces;
        mesFigures += u"<figure><figcaption>%1</figcaption><img src=\"%2\" alt=\"%1\" "
                      "width=\"%3\"></figure>\n"_s
                          .arg(TraductionGalerie(description.titre).toHtmlEscaped(), nom)
                          .arg(maFenetre.width());
    }

    bool EcrisIndex()
    {
        QString const titre = TraductionGalerie(TexteGalerie("Galerie de libFabrelGui"));
        QSaveFile fichier(monDossier.filePath(u"index.html"_s));
        QByteArray const page =
            u"<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title>\n"
            "<style>body { font-family: sans-serif; margin: 2em } img { max-width: 100%; "
            "border: 1px solid #bbb } figure { margin: 0 0 2em }</style></head>\n"
            "<body><h1>%1</h1>\n%2</body></html>\n"_s.arg(titre.toHtmlEscaped(), mesFigures)
                .toUtf8();
        monSucces = monSucces && fichier.open(QIODevice::WriteOnly) &&
                    fichier.write(page) == page.size() && fichier.commit();
        return monSucces;
    }

private:
    FenetreGalerie & maFenetre;
    QDir monDossier;
    QString mesFigures;
    bool monSucces = true;
};

} // namespace

bool EcrisCaptures(FenetreGalerie & fenetre, ThemeGalerie & theme, QString const & dossier)
{
    std::pair<eLangue, QString> const langues[] = {{kLangueFrancais, u"fr"_s},
                                                   {kLangueAnglais, u"en"_s}};
    Album album(fenetre, dossier);
    for (auto const & [langue, suffixe] : langues) {
        fenetre.MetsLangue(langue);
        for (int page = 0; page < DonnePages().size(); ++page)
            album.Photographie(page, QString(), suffixe);

        theme.Assombris();
        theme.Applique();
        fenetre.RefaisPages();
        for (int page = 0; page < DonnePages().size(); ++page)
            album.Photographie(page, u"-sombre"_s, suffixe);
        theme.Reinitialise();
        theme.Applique();
    }
    return album.EcrisIndex();
}

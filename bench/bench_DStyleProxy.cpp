// bench/bench_DStyleProxy.cpp
//
// A form of 200 mixed widgets drawn through the style over Fusion, beside the same form drawn by
// Fusion alone; and each kind of its widgets by itself, to see where a difference comes from. Exits
// with 1 when the form takes more than 1.10 times as long.
#include "foundation/ThemesQt.h"
#include "style/DStyleProxy.h"

#include "Comparaison.h"

#include <QtWidgets>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double kRatioMax = 1.10;
constexpr int kExemplaires = 20; // of each kind

struct Genre
{
    char const * nom;
    QWidget * (*fabrique)(QString const & texte);
};

constexpr Genre kGenres[] = {
    {"20 push buttons", [](QString const & texte) -> QWidget * { return new QPushButton(texte); }},
    {"20 check boxes", [](QString const & texte) -> QWidget * { return new QCheckBox(texte); }},
    {"20 radio buttons",
     [](QString const & texte) -> QWidget * { return new QRadioButton(texte); }},
    {"20 labels", [](QString const & texte) -> QWidget * { return new QLabel(texte); }},
    {"20 line edits", [](QString const & texte) -> QWidget * { return new QLineEdit(texte); }},
    {"20 combo boxes",
     [](QString const & texte) -> QWidget * {
         auto * const combo = new QComboBox;
         combo->addItem(texte);
         return combo;
     }},
    {"20 spin boxes", [](QString const &) -> QWidget * { return new QSpinBox; }},
    {"20 sliders", [](QString const &) -> QWidget * { return new QSlider(Qt::Horizontal); }},
    {"20 progress bars",
     [](QString const &) -> QWidget * {
         auto * const progression = new QProgressBar;
         progression->setValue(40);
         return progression;
     }},
    {"20 tool buttons",
     [](QString const & texte) -> QWidget * {
         auto * const bouton = new QToolButton;
         bouton->setText(texte);
         return bouton;
     }},
};

// Widgets of some kinds in rows, and the picture that they are drawn on.
class Formulaire
{
public:
    Formulaire(Genre const * debut, Genre const * fin, QStyle * style)
    {
        auto * const grille = new QGridLayout(&monPanneau);
        for (int rangee = 0; rangee < kExemplaires; ++rangee) {
            int colonne = 0;
            for (Genre const * genre = debut; genre != fin; ++genre)
                grille->addWidget(genre->fabrique(u"Texte %1"_s.arg(rangee)), rangee, colonne++);
        }
        monPanneau.resize(140 * static_cast<int>(fin - debut), 30 * kExemplaires);
        monPanneau.grab();
        grille->setEnabled(false); // both forms keep this layout: only the drawing differs
        for (QWidget * const widget : monPanneau.findChildren<QWidget *>())
            widget->setStyle(style);
        monPanneau.setStyle(style);
        monImage = QImage(monPanneau.size(), QImage::Format_ARGB32_Premultiplied);
        monImage.fill(Qt::white);
    }

    void Dessine() { monPanneau.render(&monImage); }
    qsizetype CompteWidgets() const
    {
        return monPanneau.findChildren<QWidget *>(Qt::FindDirectChildrenOnly).size();
    }

private:
    QWidget monPanneau;
    QImage monImage;
};

} // namespace

int main(int nombre, char ** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombre, arguments);
    int resultat = 0;
    {
        std::unique_ptr<QStyle> const fusion(QStyleFactory::create(u"Fusion"_s));
        DStyleProxy style(QStyleFactory::create(u"Fusion"_s));
        Comparaison comparaison(2);
        auto const mesure = [&](char const * nom, Genre const * debut, Genre const * fin,
                                double ratioMax) {
            Formulaire notre(debut, fin, &style);
            Formulaire pair(debut, fin, fusion.get());
            auto const dessine = [](Formulaire & formulaire) {
                return [&formulaire](int repetitions) {
                    for (int i = 0; i < repetitions; ++i)
                        formulaire.Dessine();
                };
            };
            if (notre.CompteWidgets() != (fin - debut) * kExemplaires)
                resultat = 1;
            comparaison.Mesure(nom, dessine(notre), dessine(pair), ratioMax);
        };
        mesure("form of 200 mixed widgets", std::begin(kGenres), std::end(kGenres), kRatioMax);
        for (Genre const & genre : kGenres)
            mesure(genre.nom, &genre, &genre + 1, 0.0);
        resultat |= comparaison.Resultat();
    }
    ThemesQt::DetruisToi();
    return resultat;
}

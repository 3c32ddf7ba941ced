// controls/DLabelElisionDisposition.cpp
#include "controls/DLabelElision.h"

#include "foundation/TailleTexte.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double kLargeurSansLimite = 2147483647.0; // more than a layout can count
constexpr double kPasMinimal = 1.0;                 // pixel

QString DonneEllipse()
{
    return u"…"_s;
}

int ArrondisVersLeHaut(double longueur)
{
    return static_cast<int>(std::ceil(longueur));
}

QTextLine CreeLigne(QTextLayout & layout, double largeur)
{
    QTextLine ligne = layout.createLine();
    if (ligne.isValid())
        ligne.setLineWidth(largeur);
    return ligne;
}

double DonneLargeurMax(QTextLayout & layout)
{
    layout.beginLayout();
    double const largeur = CreeLigne(layout, kLargeurSansLimite).naturalTextWidth();
    layout.endLayout();
    return largeur;
}

} // namespace

int DLabelElision::DonneLargeurTexte() const
{
    // The lines that this takes away are due anyway: what asks for a measure asks for them too.
    if (maLargeurPleine < 0.0)
        maLargeurPleine = DonneLargeurMax(monLayout);
    return ArrondisVersLeHaut(maLargeurPleine);
}

void DLabelElision::DisposeTexte(QSize const & taille) const
{
    monAjustementDu = false;
    maTailleVue = size();
    maLargeurDisponible = taille.width();
    maLargeurEllipse =
        RoutinesGeneralesQt::DonneTailleTexteBrut(DonneEllipse(), monLayout.font()).width();
    double const place = std::max(0, maLargeurDisponible - maLargeurEllipse);
    QTextOption option(monOption);
    option.setAlignment(DonneAlignementVisuel());
    monLayout.setTextOption(option);
    monLayout.setCacheEnabled(true);

    monLayout.beginLayout();
    QTextLine ligne = monLayout.createLine();
    if (maLargeurPleine < 0.0) {
        ligne.setLineWidth(kLargeurSansLimite);
        maLargeurPleine = ligne.naturalTextWidth();
    }
    ligne.setLineWidth(maLargeurDisponible);
    monElision = monModeElision != kSansElision && ligne.naturalTextWidth() < maLargeurPleine;
    if (monElision)
        ligne.setLineWidth(place);
    monLayout.endLayout();

    if (monElision && monModeElision == kElisionDebut)
        ligne = DisposeFin(place);
    maLargeurTexte = ligne.isValid() ? ArrondisVersLeHaut(ligne.naturalTextWidth()) : 0;
    maHauteurTexte = ArrondisVersLeHaut(monLayout.lineAt(0).height());
    if (monElision)
        PlaceAvecEllipse(ligne, place);
}

// A first line takes what is dropped, a second one the end. As lines break between characters, the
// first may take too little for the second to hold all the rest; it then gets as much more.
QTextLine DLabelElision::DisposeFin(double place) const
{
    QString const texte = monLayout.text();
    qsizetype const separateur = texte.indexOf(QChar::LineSeparator);
    qsizetype const finTexte = separateur < 0 ? texte.size() : separateur;
    for (double laissay = maLargeurPleine - place; laissay < maLargeurPleine;) {
        monLayout.beginLayout();
        CreeLigne(monLayout, laissay);
        QTextLine const fin = CreeLigne(monLayout, place);
        double manque = 0.0;
        if (!fin.isValid() || fin.textStart() >= finTexte)
            manque = maLargeurPleine;
        else if (fin.textStart() + fin.textLength() < finTexte)
            manque = CreeLigne(monLayout, kLargeurSansLimite).horizontalAdvance() + kPasMinimal;
        else
            manque = fin.horizontalAdvance() - place;
        monLayout.endLayout();
        if (manque <= 0.0)
            return fin;
        laissay += std::max(manque, kPasMinimal);
    }
    return {};
}

void DLabelElision::PlaceAvecEllipse(QTextLine & ligne, double place) const
{
    bool const aGauche = EllipseEstAGauche();
    // A line takes one character at the least, for which there may be no room.
    if (ligne.isValid() && ligne.horizontalAdvance() <= place) {
        ligne.setPosition(QPointF(aGauche ? maLargeurEllipse : 0, 0));
        // Beside the text, also where this is flush right: the ellipsis stands for what is missing
        // there, and at a fixed place it would lie under the text.
        double const gauche = ligne.naturalTextRect().left();
        maPositionEllipse =
            aGauche ? gauche - maLargeurEllipse : gauche + ligne.horizontalAdvance();
        return;
    }
    maLargeurTexte = 0;
    QRect const disponible(0, 0, maLargeurDisponible, maHauteurTexte);
    QSize const ellipse(std::min(maLargeurEllipse, maLargeurDisponible), maHauteurTexte);
    maPositionEllipse =
        QStyle::alignedRect(Qt::LeftToRight, DonneAlignementVisuel(), ellipse, disponible).left();
}

Qt::Alignment DLabelElision::DonneAlignementVisuel() const
{
    return QStyle::visualAlignment(layoutDirection(), monOption.alignment());
}

bool DLabelElision::EllipseEstAGauche() const
{
    return (monModeElision == kElisionDebut) != monLayout.text().isRightToLeft();
}

void DLabelElision::DessineEllipse(QPainter & peintre, QTextLine const & ligne) const
{
    if (maLargeurTexte == 0) // it may be wider than the label
        peintre.setClipRect(QRect(0, 0, maLargeurDisponible, maHauteurTexte), Qt::IntersectClip);
    if (maCouleurFondElipse.isValid() && maCouleurFondElipse != Qt::transparent)
        peintre.fillRect(QRectF(maPositionEllipse, 0, maLargeurEllipse, ligne.height()),
                         maCouleurFondElipse);
    peintre.drawText(QPointF(maPositionEllipse, ligne.ascent()), DonneEllipse());
}

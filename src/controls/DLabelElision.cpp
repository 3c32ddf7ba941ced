// controls/DLabelElision.cpp
#include "controls/DLabelElision.h"

#include "foundation/TailleTexte.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QResizeEvent>
#include <QStyle>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextDocument>

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

void MetsTexteDansLayout(QTextLayout & layout, QString const & texte, bool riche)
{
    layout.clearFormats();
    if (!riche) {
        layout.setText(texte);
        return;
    }
    static QTextDocument document; // one for all labels: making one costs more than the parsing
    document.setHtml(texte);
    QTextBlock const bloc = document.firstBlock();
    layout.setText(bloc.text());
    layout.setFormats(bloc.textFormats());
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

DLabelElision::DLabelElision(QString const & texte, QWidget * parent)
    : DLabelElision(parent)
{
    PrendsTexte(texte);
}

DLabelElision::DLabelElision(QWidget * parent)
    : QWidget(parent)
{
    // A single word that does not fit is cut too, which word wrap would leave whole.
    monOption.setWrapMode(QTextOption::WrapAnywhere);
    monLayout.setFont(font());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void DLabelElision::PrendsTexte(QString const & texte, bool force)
{
    if (!force && monTexteSource == texte)
        return;
    QString const ancienTexte = DonneTexte();
    monTexteSource = texte;
    MetsTexteDansLayout(monLayout, texte, Qt::mightBeRichText(texte));
    maLargeurPleine = -1.0;
    DemandeAjustement();
    updateGeometry();
    if (accessibleName() == ancienTexte)
        setAccessibleName(DonneTexte());
}

QString DLabelElision::DonneTexte() const
{
    return monLayout.text();
}

QString DLabelElision::DonneTexteAvecElision(int largeur) const
{
    if (!EstEliday())
        return DonneTexte();
    // Deliberate: the characters are those of the text as it was given, its mark-up included.
    QString const source = monTexteSource;
    QFontMetrics const mesures(monLayout.font());
    int reste = largeur - maLargeurEllipse;
    QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, source);
    qsizetype fin = 0;
    for (qsizetype suivante = limites.toNextBoundary(); suivante > 0;
         suivante = limites.toNextBoundary()) {
        reste -= mesures.horizontalAdvance(source.sliced(fin, suivante - fin));
        if (reste < 0)
            break;
        fin = suivante;
    }
    return source.first(fin) + "..."_L1;
}

void DLabelElision::PrendsModeElision(Elision mode)
{
    monModeElision = mode;
    DemandeAjustement();
}

DLabelElision::Elision DLabelElision::DonneModeElision() const
{
    return monModeElision;
}

bool DLabelElision::EstEliday() const
{
    AjusteSiDu();
    return monElision;
}

void DLabelElision::PrendsAlignement(QFlags<Qt::AlignmentFlag> alignement)
{
    monOption.setAlignment(alignement);
    DemandeAjustement();
}

QFlags<Qt::AlignmentFlag> DLabelElision::DonneAlignement() const
{
    return monOption.alignment();
}

void DLabelElision::PrendsPolice(QFont const & police)
{
    setFont(police);
    monLayout.setFont(police); // also where the widget has the rest of its font from its parent
    maLargeurPleine = -1.0;
    DemandeAjustement();
}

QFont DLabelElision::DonnePolice() const
{
    return monLayout.font();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DLabelElision::PrendsCouleurBase(QColor couleur)
{
    maCouleurBase = couleur;
    update();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DLabelElision::PrendsPalette(QPalette palette)
{
    setPalette(palette);
}

void DLabelElision::PrendsCouleurFondElipse(QColor const & couleur)
{
    maCouleurFondElipse = couleur;
    update();
}

QColor DLabelElision::DonneCouleurFondElipse()
{
    return maCouleurFondElipse;
}

int DLabelElision::DonneLongueurLigne() const
{
    AjusteSiDu();
    return monElision ? maLargeurTexte + maLargeurEllipse : maLargeurTexte;
}

void DLabelElision::AjusteElision(QSize const & taille)
{
    if (!taille.isValid())
        return;
    DisposeTexte(taille);
    update();
}

void DLabelElision::render(QPainter * peintre, QPoint const & position, QRegion const &,
                           QFlags<QWidget::RenderFlag>)
{
    if (!peintre)
        return;
    if (!testAttribute(Qt::WA_Resized)) {
        setAttribute(Qt::WA_Resized);
        QResizeEvent evenement(size(), QSize());
        QCoreApplication::sendEvent(this, &evenement);
    }
    AjusteSiDu();

    peintre->save();
    peintre->translate(position);
    peintre->setFont(monLayout.font());
    if (maCouleurBase.isValid())
        peintre->setPen(maCouleurBase);
    // The last line is the one to be seen: where the beginning is dropped, it is the first one.
    QTextLine const ligne = monLayout.lineAt(monLayout.lineCount() - 1);
    if (monElision)
        DessineEllipse(*peintre, ligne);
    if (maLargeurTexte > 0)
        ligne.draw(peintre, QPointF());
    peintre->restore();
}

QSize DLabelElision::sizeHint() const
{
    if (maLargeurPleine < 0.0)
        maLargeurPleine = DonneLargeurMax(monLayout);
    return {ArrondisVersLeHaut(maLargeurPleine), QFontMetrics(monLayout.font()).height()};
}

QSize DLabelElision::minimumSizeHint() const
{
    return {-1, QFontMetrics(monLayout.font()).height()};
}

void DLabelElision::resizeEvent(QResizeEvent * evenement)
{
    QWidget::resizeEvent(evenement);
    if (evenement->size() != maTailleVue)
        monAjustementDu = true;
}

void DLabelElision::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    render(&peintre);
}

void DLabelElision::changeEvent(QEvent * evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange) {
        monLayout.setFont(font());
        maLargeurPleine = -1.0;
        updateGeometry();
        DemandeAjustement();
    } else if (evenement->type() == QEvent::LayoutDirectionChange) {
        DemandeAjustement();
    }
}

bool DLabelElision::AjustementEstDu() const
{
    // A widget that is not shown gets no event when it is resized.
    return monAjustementDu || size() != maTailleVue;
}

void DLabelElision::DemandeAjustement()
{
    monAjustementDu = true;
    update();
}

void DLabelElision::AjusteSiDu() const
{
    if (AjustementEstDu())
        DisposeTexte(size());
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
        QRectF const rectangle = ligne.naturalTextRect();
        maPositionEllipse = aGauche ? rectangle.left() - maLargeurEllipse : rectangle.right();
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
    if (maCouleurFondElipse != Qt::transparent)
        peintre.fillRect(QRectF(maPositionEllipse, 0, maLargeurEllipse, ligne.height()),
                         maCouleurFondElipse);
    peintre.drawText(QPointF(maPositionEllipse, ligne.ascent()), DonneEllipse());
}

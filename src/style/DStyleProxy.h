// style/DStyleProxy.h
#pragma once

#include "style/InterpreteurChaineSemantiqueT.h" // makes its rules
#include "style/MapDeRegles.h"

#include "FabrelGuiExport.h"

#include <QColor>
#include <QIcon>
#include <QPainterPath>
#include <QPointer>
#include <QProxyStyle>

#include <memory>

class DLabelElision;
class MemoirePalettes;
class QLabel;
class QLineEdit;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionTab;
class QStyleOptionToolButton;
class QStyleOptionViewItem;

/// The look of the family, on top of any other style; an application installs it with
/// `QApplication::setStyle`.
///
/// A widget asks for a behaviour by a dynamic property on itself, read whenever it is drawn or
/// measured: `setProperty(DStyleProxy::DonneNom...(), true)`. Where the comment says "any true
/// value", whatever `QVariant::toBool` takes for true counts; elsewhere nothing but a boolean does.
/// A property that changes is seen at the next paint; sizes need an `updateGeometry`.
///
/// Texts of a widget with rules (see `MapDeRegles`) are rich where a rule applies; those of menu
/// items and of items in views, only if the widget says so (see
/// `DonneNomProprietePossedeRegleTexteRiche`), menu items then also without a rule. A rich text
/// with an unbalanced tag throws `InterpreteurChaineSemantiqueErreur` out of its drawing and
/// measuring. A rich menu item shows no mnemonic.
///
/// Rich texts are drawn by a hidden `QLabel`, so rules of the application's style sheet for every
/// `QLabel` also apply to them.
///
/// One picture is the application's to supply: ":Images/chevron-DToolButton.svg", the arrow of
/// buttons, without which none is drawn.
///
/// On a base style that writes less than 4 pixels from the left edge of a line edit, the style
/// gives the field a text margin of 4 pixels more while it has this style. In a dark palette,
/// overlays are white instead of black and the name of the selected tab, which is white, is black.
///
/// Between a right-to-left layout and a left-to-right one, what is drawn here is mirrored. GUI
/// thread only, and not to be used while it is drawing a text.
class FABRELGUI_EXPORT DStyleProxy : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes `base`, which becomes its own; for null the platform's style. Keeps the window colour
    /// that the application's palette has now, and adds the theme variable
    /// "couleurBoutonDStyleProxyMouseOver". There must be an application object.
    explicit DStyleProxy(QStyle * base);
    ~DStyleProxy() override;

    /// Check indicators keep their size whatever the modulator of fonts; a button that cannot be
    /// used or checked has a pale picture; what the style adds to controls stays away, but for menu
    /// items.
    static char const * DonneNomAttributPourStyle();
    /// The picture of an enabled button is not paled, even if it is not checkable.
    static char const * DonneNomAttributPourStyleBoutonCheckable();
    /// Pale when disabled.
    static char const * DonneNomAttributPourStyleMonochrome();
    /// A menu scrolls, and is not higher than the widget's maximum height.
    static char const * DonneNomAttributPourStyleScrolling();
    /// The content of a button does not shift when it is pressed.
    static char const * DonneNomAttributStyleBoutonSansDecalage();
    /// No control element of the widget is drawn.
    static char const * DonneNomAttributStyleChampTexteSansLigneDecoratrice();
    /// A combo box without an arrow, whose text takes its room. Any true value.
    static char const * DonneNomAttributStyleComboBoxSansFleche();
    /// All items of a menu are checkable, and not exclusive.
    static char const * DonneNomAttributStyleCrochetMenu();
    /// A rich menu without a column for checks.
    static char const * DonneNomAttributMenuCochableSansLaSectionACocher();
    /// Not a boolean: the `MapDeRegles` of the widget's texts.
    static char const * DonneNomProprieteEnsembleReglesTexteRiche();
    /// The widget's menu items and item texts are rich.
    static char const * DonneNomProprietePossedeRegleTexteRiche();
    /// A push button that shows the mouse, and being chosen, by the colour of its label alone. Any
    /// true value.
    static char const * DonneNomStyleBoutonsStyleHomographes();
    /// A combo box without a frame.
    static char const * DonneNomStyleComboBoxSansFrame();
    /// The style does not read it.
    static char const * DonneNomStyleCouleurBordure();
    /// A push button without a bevel; the label of a default one has its usual colour then.
    static char const * DonneNomStyleDesactiveBevelBouton();
    /// A button without an arrow for its menu. Any true value.
    static char const * DonneNomStyleDesactiveFlecheMenuBouton();
    /// Half the space between a check box and its label, with `DonneNomAttributPourStyle`. Any true
    /// value.
    static char const * DonneNomStyleEspacementReduitCaseCochay();
    /// No focus rectangle.
    static char const * DonneNomStyleFocusSansRect();
    /// The background of a chosen row leaves a pixel free under it. Any true value.
    static char const * DonneNomStyleListSeparateur();
    /// The mark of a selected item has the theme colour "couleurAccentDictionnaires". Any true
    /// value.
    static char const * DonneNomStyleSelecteurDictionnaires();
    /// The mark of a selected item has the theme colour "couleurAccentGuides". Any true value.
    static char const * DonneNomStyleSelecteurGuides();

    /// The theme colour "couleurBoutonDStyleProxyMouseOver".
    QColor DonneCouleurBoutonMouseOver() const;

    /// The rules for texts of no widget: "br/", "i", "sup" and "b" become the HTML of that name.
    static EnsembleRegles DonneReglesDeBase();
    /// The rules of `widget` in `contexte`, none where it has no entry for it; the base rules for a
    /// null `widget`.
    EnsembleRegles DonneInterpreteurPourContexte(eContextePourStyle contexte,
                                                 QWidget const * const widget) const;
    /// A menu item is normal unless it is selected, also under the mouse. Normal for null.
    static eContextePourStyle DonneContexte(QStyleOption const * option);

    /// Draws `texte` in `rect`, moved by the two offsets, as rich text by the rules of `widget`,
    /// in the font of the painter and the window text colour of `palette`.
    ///
    /// Returns false, and has drawn nothing, when no rule applies to the text and `forcay` is
    /// false. `alignement` is a set of `Qt::AlignmentFlag`; other bits are ignored.
    bool DessinerTexteRiche(QPainter * peintre, QString texte, QRect const & rect, bool actif,
                            QPalette const & palette, int decalageHorizontal, int decalageVertical,
                            eContextePourStyle contexte, int alignement,
                            QWidget const * const widget, bool forcay) const;

    /// Draws the accent mark of a selected row at the leading edge of the option's rectangle.
    static void DessineSelecteurAccentListe(QPainter * peintre, QStyleOptionViewItem const & option,
                                            QWidget const * widget, QColor const & couleur);

    using QProxyStyle::polish;
    void polish(QWidget * widget) override;
    void drawItemText(QPainter * peintre, QRect const & rect, int drapeaux,
                      QPalette const & palette, bool actif, QString const & texte,
                      QPalette::ColorRole role = QPalette::NoRole) const override;
    void drawItemPixmap(QPainter * peintre, QRect const & rect, int alignement,
                        QPixmap const & pixmap) const override;
    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget = nullptr) const override;
    void drawControl(ControlElement element, QStyleOption const * option, QPainter * peintre,
                     QWidget const * widget = nullptr) const override;
    QRect subElementRect(SubElement element, QStyleOption const * option,
                         QWidget const * widget) const override;
    void drawComplexControl(ComplexControl controle, QStyleOptionComplex const * option,
                            QPainter * peintre, QWidget const * widget = nullptr) const override;
    QRect subControlRect(ComplexControl controle, QStyleOptionComplex const * option,
                         SubControl sousControle, QWidget const * widget) const override;
    int pixelMetric(PixelMetric mesure, QStyleOption const * option = nullptr,
                    QWidget const * widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, QStyleOption const * option, QSize const & taille,
                           QWidget const * widget) const override;
    int styleHint(StyleHint indication, QStyleOption const * option = nullptr,
                  QWidget const * widget = nullptr,
                  QStyleHintReturn * retour = nullptr) const override;
    using QProxyStyle::unpolish;
    void unpolish(QWidget * widget) override;

private:
    struct ChainesItemMenu
    {
        UniChaine texte;
        UniChaine raccourci;
    };

    static ChainesItemMenu DonneChainesDansItemMenu(QStyleOptionMenuItem const * option);
    static QPainterPath DonneFormeOnglet(QRect const & rect);
    // The radii go clockwise from the top left corner.
    static QPainterPath DonneRectArondi(QRect const & rect, int hautGauche, int hautDroite,
                                        int basDroite, int basGauche);
    void DessineIndicateur(QPainter & peintre, QStyleOption const & option) const;
    static bool PossedeDPIEntier(QWidget const * widget);
    static void ArreteAnimations(QStyleOption const * option, QWidget const * widget);
    bool SelectionnaySurFondAccent() const;

    // One control element or primitive each.
    void DessineItemMenu(ControlElement element, QStyleOptionMenuItem const & option,
                         QPainter * peintre, QWidget const * widget) const;
    bool DessinePrimitive(PrimitiveElement element, QStyleOption const & option, QPainter * peintre,
                          QWidget const * widget) const;
    void DessineSansExtras(ControlElement element, QStyleOption const * option, QPainter * peintre,
                           QWidget const * widget) const;
    bool DessineElement(ControlElement element, QStyleOption const * option, QPainter * peintre,
                        QWidget const * widget) const;
    bool DessineCadre(QStyleOption const * option, QPainter * peintre,
                      QWidget const * widget) const;
    void DessineFondBouton(QStyleOptionButton const & option, QPainter * peintre,
                           QWidget const * widget) const;
    QColor DonneFondBouton(QStyleOptionButton const & option) const;
    void DessineTexteBouton(QStyleOptionButton const & option, QPainter * peintre,
                            QWidget const * widget) const;
    static void DessineOnglet(QStyleOptionTab const & option, QPainter * peintre,
                              QWidget const * widget);
    void DessineTexteOnglet(QStyleOptionTab const & option, QPainter * peintre,
                            QWidget const * widget) const;
    void DessineItemVue(QStyleOptionViewItem const & option, QPainter * peintre,
                        QWidget const * widget) const;
    static void DessineFondItem(QStyleOptionViewItem const & option, QPainter * peintre,
                                QWidget const * widget);
    bool DessinePanneauItem(QStyleOptionViewItem const & option, QPainter * peintre,
                            QWidget const * widget) const;
    bool DessineRangee(QStyleOptionViewItem const & option, QPainter * peintre,
                       QWidget const * widget) const;
    bool SuitRegles(QString const & texte, eContextePourStyle contexte,
                    QWidget const * widget) const;
    void EcrisItem(QStyleOptionViewItem const & option, QPalette const & palette,
                   QPainter * peintre, QWidget const * widget, QWidget const * decideur) const;
    void DessineTexteBoutonOutil(QStyleOptionToolButton const & option, QPainter * peintre,
                                 QWidget const * widget) const;
    static void DessineSectionEntete(QStyleOptionHeader const & option, QPainter * peintre);
    void DessinePanneauBoutonOutil(QStyleOption const & option, QPainter * peintre,
                                   QWidget const * widget) const;
    void DessineBoutonOutil(QStyleOptionToolButton const & option, QPainter * peintre,
                            QWidget const * widget) const;
    void DessineComboBox(QStyleOptionComboBox const & option, QPainter * peintre,
                         QWidget const * widget) const;
    QSize MesureTexteRiche(QString const & texte, QFont const & font,
                           EnsembleRegles const & regles) const;
    QSize MesureItemVue(QStyleOptionViewItem const & option, QSize const & taille,
                        QWidget const * widget) const;
    int MesureTexteItemMenu(QStyleOptionMenuItem const & option, QWidget const * widget) const;
    void AjouteMargeTexte(QLineEdit & champ) const;
    static void EnleveMargeTexte(QLineEdit & champ);
    QLabel & PreteLabel(QPointer<QLabel> & label) const;

    // Measuring and drawing rich text: hidden labels without a parent, made on first use.
    mutable QPointer<QLabel> monLabelMesure;
    mutable QPointer<QLabel> monLabelRendu;
    QColor maCouleurFenetre;
    // The widget that drawControl was last called for. It may be gone: texts and pictures are also
    // drawn outside of it.
    mutable QPointer<QWidget const> monWidgetDessinay;
    mutable QPointer<DLabelElision> monLabelElision;
    mutable bool monWidgetManque = true; // drawControl was last called without a widget, or never
    mutable bool monItemEstDessinay = false; // of a view, by drawControl
    mutable bool monFondItemPeint = false;   // of that item
    mutable QIcon monChevron;
    std::unique_ptr<MemoirePalettes> maMemoirePalettes;
};

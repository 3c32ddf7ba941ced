// tests/style/StyleEspion.h
#pragma once

#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

/// One call that a StyleEspion got, as things were at that moment.
struct AppelStyle
{
    enum eFonction
    {
        kControle,
        kPrimitive,
        kComplexe,
        kTexte,
        kPixmap,
        kPolish
    };

    eFonction fonction;
    int element = -1; ///< of the enumeration of the function; the colour role of a text
    QWidget const * widget = nullptr;

    bool avecOption = false;
    QStyleOption option{}; ///< its state, rectangle, palette, direction and object
    QRect rect{};          ///< the option's, or the argument
    QPalette palette{};    ///< likewise
    int typeOption = 0;
    quint32 caracteristiques = 0; ///< of a button, tool button or view item
    int typeCoche = -1;           ///< of a menu item
    bool cadre = false;           ///< of a combo box
    QStyle::SubControls sousControles{};
    QString texte{};
    bool sansAnimation = false; ///< the option's object is told to do without

    qreal opacite = 1.0; ///< of the painter
    QPainter::RenderHints indices{};

    int drapeaux = 0; ///< of a text, or the alignment of a picture
    bool actif = false;
    QPixmap image{};
};

/// A base style that notes what it is asked to draw. It answers all questions of size as its own
/// base, Fusion if not told otherwise.
class StyleEspion : public QProxyStyle
{
public:
    enum eConduite
    {
        kMuet,    ///< draws nothing
        kDessine, ///< draws as its base, also what that asks for itself
        kDerange  ///< draws nothing and leaves the painter in disorder
    };

    explicit StyleEspion(eConduite conduite = kMuet,
                         QString const & base = QStringLiteral("Fusion"))
        : QProxyStyle(QStyleFactory::create(base))
        , maConduite(conduite)
    {
    }

    bool seDitFusion = false; ///< answers to the class name of Fusion
    mutable QList<AppelStyle> appels;

    /// The calls of that function for the element, or for any.
    QList<AppelStyle> Donne(AppelStyle::eFonction fonction, int element = -1) const
    {
        QList<AppelStyle> choisis;
        for (AppelStyle const & appel : std::as_const(appels)) {
            if (appel.fonction == fonction && (element < 0 || appel.element == element))
                choisis.append(appel);
        }
        return choisis;
    }

    void * qt_metacast(char const * nom) override
    {
        if (seDitFusion && qstrcmp(nom, "QFusionStyle") == 0)
            return this;
        return QProxyStyle::qt_metacast(nom);
    }

    void drawControl(ControlElement element, QStyleOption const * option, QPainter * peintre,
                     QWidget const * widget) const override
    {
        Note({AppelStyle::kControle, int(element), widget}, option, peintre);
        if (maConduite == kDessine)
            QProxyStyle::drawControl(element, option, peintre, widget);
    }

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget) const override
    {
        Note({AppelStyle::kPrimitive, int(element), widget}, option, peintre);
        if (maConduite == kDessine)
            QProxyStyle::drawPrimitive(element, option, peintre, widget);
    }

    void drawComplexControl(ComplexControl controle, QStyleOptionComplex const * option,
                            QPainter * peintre, QWidget const * widget) const override
    {
        Note({AppelStyle::kComplexe, int(controle), widget}, option, peintre);
        if (maConduite == kDessine)
            QProxyStyle::drawComplexControl(controle, option, peintre, widget);
    }

    void drawItemText(QPainter * peintre, QRect const & rect, int drapeaux,
                      QPalette const & palette, bool actif, QString const & texte,
                      QPalette::ColorRole role) const override
    {
        AppelStyle appel{AppelStyle::kTexte, int(role)};
        appel.rect = rect;
        appel.palette = palette;
        appel.drapeaux = drapeaux;
        appel.actif = actif;
        appel.texte = texte;
        Note(appel, nullptr, peintre);
        if (maConduite == kDessine)
            QProxyStyle::drawItemText(peintre, rect, drapeaux, palette, actif, texte, role);
    }

    void drawItemPixmap(QPainter * peintre, QRect const & rect, int alignement,
                        QPixmap const & image) const override
    {
        AppelStyle appel{AppelStyle::kPixmap};
        appel.rect = rect;
        appel.drapeaux = alignement;
        appel.image = image;
        Note(appel, nullptr, peintre);
        if (maConduite == kDessine)
            QProxyStyle::drawItemPixmap(peintre, rect, alignement, image);
    }

    using QProxyStyle::polish;
    void polish(QWidget * widget) override
    {
        Note({AppelStyle::kPolish, -1, widget}, nullptr, nullptr);
        QProxyStyle::polish(widget);
    }

private:
    void Note(AppelStyle appel, QStyleOption const * option, QPainter * peintre) const
    {
        if (option)
            NoteOption(appel, *option);
        if (peintre) {
            appel.opacite = peintre->opacity();
            appel.indices = peintre->renderHints();
        }
        appels.append(appel);
        if (peintre && maConduite == kDerange)
            Derange(*peintre);
    }

    static void NoteOption(AppelStyle & appel, QStyleOption const & option)
    {
        appel.avecOption = true;
        appel.option = option;
        appel.rect = option.rect;
        appel.palette = option.palette;
        appel.typeOption = option.type;
        appel.sansAnimation =
            option.styleObject && option.styleObject->property("_q_no_animation").toBool();
        if (auto const * bouton = qstyleoption_cast<QStyleOptionButton const *>(&option)) {
            appel.caracteristiques = bouton->features;
            appel.texte = bouton->text;
        } else if (auto const * item = qstyleoption_cast<QStyleOptionViewItem const *>(&option)) {
            appel.caracteristiques = item->features;
            appel.texte = item->text;
        } else if (auto const * menu = qstyleoption_cast<QStyleOptionMenuItem const *>(&option)) {
            appel.typeCoche = menu->checkType;
            appel.texte = menu->text;
        }
        if (auto const * complexe = qstyleoption_cast<QStyleOptionComplex const *>(&option))
            appel.sousControles = complexe->subControls;
        if (auto const * outil = qstyleoption_cast<QStyleOptionToolButton const *>(&option)) {
            appel.caracteristiques = outil->features;
            appel.texte = outil->text;
        }
        if (auto const * liste = qstyleoption_cast<QStyleOptionComboBox const *>(&option))
            appel.cadre = liste->frame;
    }

    static void Derange(QPainter & peintre)
    {
        peintre.setPen(QPen(Qt::magenta, 9.0));
        peintre.setBrush(Qt::cyan);
        peintre.setOpacity(0.125);
        peintre.translate(31.0, 17.0);
        peintre.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    }

    eConduite maConduite;
};

// tests/style/EssaisItemsRiches.h
#pragma once

#include "style/EssaisPeinture.h"

#include "style/InterpreteurChaineSemantiqueT.h"

// What the tests of rich items share: rules that show where a text begins, and an item.

inline constexpr QRect kRect(10, 10, 180, 40);
inline constexpr QSize kTaille(200, 60);
inline constexpr QStyle::State kNormal = QStyle::State_Enabled | QStyle::State_Active;
inline constexpr QStyle::State kSelection = kNormal | QStyle::State_Selected;
inline constexpr QStyle::State kSurvol = kNormal | QStyle::State_MouseOver;

/// The element "r" on a background of that colour, which begins where the text does.
inline EnsembleRegles DonneRegles(QString const & couleur)
{
    QString const ouvrant =
        QStringLiteral("<span style=\"color:%1;background-color:%1\">").arg(couleur);
    return {{UniChaine("r"),
             InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
                 ouvrant, QStringLiteral("</span>"))}};
}

/// Red when normal, green when selected, blue under the mouse.
inline MapDeRegles ToutesLesRegles()
{
    return {{kContexteNormal, DonneRegles(QStringLiteral("#ff0000"))},
            {kContexteSelectionnay, DonneRegles(QStringLiteral("#00ff00"))},
            {kContexteSurvolay, DonneRegles(QStringLiteral("#0000ff"))}};
}

inline void MetsRegles(QWidget & widget, MapDeRegles const & regles = ToutesLesRegles())
{
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(regles));
    widget.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
}

inline QStyleOptionViewItem DonneOption(QStyle::State etat,
                                        QString const & texte = QStringLiteral("<r>Mot</r>"))
{
    QStyleOptionViewItem option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.text = texte;
    option.font.setPixelSize(28);
    option.font.setBold(true);
    option.features = QStyleOptionViewItem::HasDisplay;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    return option;
}

/// What the style paints of an item.
inline QImage PeinsItem(BancStyle const & banc, QStyleOption const & option, QWidget const * widget)
{
    return Peins(kTaille, [&](QPainter & peintre) {
        banc.style.drawControl(QStyle::CE_ItemViewItem, &option, &peintre, widget);
    });
}

/// What the base was given to write in its only call for an item, which is then forgotten.
inline QString PrendsTexteDeLaBase(BancStyle const & banc)
{
    auto const appels = banc.espion->Donne(AppelStyle::kControle, QStyle::CE_ItemViewItem);
    banc.espion->appels.clear();
    if (appels.size() == 1)
        return appels.first().texte;
    QTest::qFail("The base is not called once", __FILE__, __LINE__);
    return {};
}

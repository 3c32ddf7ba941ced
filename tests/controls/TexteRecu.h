// tests/controls/TexteRecu.h
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QString>

/// A paint device that keeps the texts it is told to draw, in that order, instead of drawing them.
class TexteRecu : public QPaintDevice
{
public:
    TexteRecu()
        : monMoteur(*this)
    {
    }

    QString const & DonneTexte() const { return monTexte; }

    QPaintEngine * paintEngine() const override { return &monMoteur; }

protected:
    int metric(PaintDeviceMetric mesure) const override
    {
        switch (mesure) {
        case PdmWidth:
        case PdmHeight:
            return 10000;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDepth:
            return 32;
        default:
            return 96; // dots per inch
        }
    }

private:
    class Moteur : public QPaintEngine
    {
    public:
        explicit Moteur(TexteRecu & recu)
            : QPaintEngine(AllFeatures)
            , monRecu(recu)
        {
        }

        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(QPaintEngineState const &) override {}
        void drawPixmap(QRectF const &, QPixmap const &, QRectF const &) override {}
        Type type() const override { return User; }
        void drawTextItem(QPointF const &, QTextItem const & item) override
        {
            monRecu.monTexte += item.text();
        }

    private:
        TexteRecu & monRecu;
    };

    QString monTexte;
    mutable Moteur monMoteur;
};

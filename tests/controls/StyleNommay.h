// tests/controls/StyleNommay.h
#pragma once

#include "style/DStyleProxy.h"

#include <QStyleFactory>

#include <memory>

/// A style of Qt by its name; "DStyleProxy" stands on Fusion.
inline std::unique_ptr<QStyle> DonneStyleNommay(QString const & nom)
{
    if (nom == QLatin1StringView("DStyleProxy"))
        return std::make_unique<DStyleProxy>(QStyleFactory::create(QStringLiteral("Fusion")));
    return std::unique_ptr<QStyle>(QStyleFactory::create(nom));
}

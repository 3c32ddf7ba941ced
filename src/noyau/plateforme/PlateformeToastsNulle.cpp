// noyau/plateforme/PlateformeToastsNulle.cpp
#include "noyau/plateforme/PlateformeToasts.h"

#include "noyau/plateforme/PlateformeToastsSysteme_p.h"

namespace {
class PlateformeToastsNulle final : public PlateformeToasts
{
public:
    HRESULT RoGetActivationFactory(QString const &,
                                   Toasts::IToastNotificationManagerStatics ** fabrique) override
    {
        return Refuse(fabrique);
    }

    HRESULT RoGetActivationFactory(QString const &,
                                   Toasts::IToastNotificationFactory ** fabrique) override
    {
        return Refuse(fabrique);
    }

private:
    template <typename Fabrique>
    static HRESULT Refuse(Fabrique ** fabrique)
    {
        *fabrique = nullptr;
        return E_NOTIMPL;
    }
};
} // namespace

std::unique_ptr<PlateformeToasts> CreePlateformeToastsDuSysteme()
{
    return std::make_unique<PlateformeToastsNulle>();
}

#include "captiontable.h"

static constexpr CaptionRow kCaptions[] = {
    {u"Tensões", u"Tensões", u"Power Supplies", u"Tensiones"},
    {u"Sem Medição", u"Sem Medição", u"No Reading", u"Sin lectura"},
};

std::span<const CaptionRow> captionTable()
{
    return kCaptions;
}

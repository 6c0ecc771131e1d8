#include "glyph.h"

Glyph glyphOf(Verdict verdict)
{
    static constexpr Glyph kGlyphs[] = {Glyph::Dash, Glyph::Check, Glyph::Question, Glyph::Cross};
    return kGlyphs[static_cast<std::size_t>(verdict)];
}

QString verdictCaption(Verdict verdict, Language language)
{
    static constexpr QStringView kKeys[] = {u"Sem julgamento", u"Aprovado", u"Incompleto", u"Falha"};
    return caption(kKeys[static_cast<std::size_t>(verdict)], language);
}

#pragma once

#include <cstdint>

#include <QCoreApplication>
#include <QString>

namespace Loadwick {

struct TextLocale;

/// Tokens as words, with the locale's figures: "1 token", "1,234 tokens".
struct TokenText
{
    [[nodiscard]] static QString count(std::int64_t tokens, const TextLocale &locale);

    /// The same with a sign, as `NumberText::groupedChange` writes it: "+1 token", "-80 tokens".
    [[nodiscard]] static QString change(std::int64_t tokens, const TextLocale &locale);

    Q_DECLARE_TR_FUNCTIONS(TokenText)
};

} // namespace Loadwick

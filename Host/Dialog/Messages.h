// What a person is to know now.
#pragma once

#include <QStringList>

#include <map>
#include <optional>
#include <utility>

namespace host {

/// What a message is about: it goes when its reason has gone, and only that.
enum class About { printer, panel, document, fit, paper, pages, job, settings };

class Messages
{
public:
    /// Empty sentences for nothing to say. False when that is what was said already.
    bool say(About about, const QString &sentences)
    {
        return std::exchange(m_sentences[about], sentences) != sentences;
    }
    QString about(About about) const
    {
        const auto found = m_sentences.find(about);
        return found == m_sentences.end() ? QString() : found->second;
    }
    /// All of them, a line each at least.
    QString text() const { return textBeside(std::nullopt); }
    /// The same without what is said elsewhere.
    QString textBeside(std::optional<About> elsewhere) const
    {
        QStringList sentences;
        for (const auto &[about, said] : m_sentences)
            if (!said.isEmpty() && about != elsewhere)
                sentences.append(said);
        return sentences.join('\n');
    }

private:
    std::map<About, QString> m_sentences;
};

} // namespace host

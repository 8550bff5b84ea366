#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace aerolith {

/// A user who answers the modal dialogs that come up, one after the other, while the program waits in them.
class DialogDriver
{
public:
    /// What the dialogs said so far, message and informative text.
    QStringList shown;

    /// Answers the next dialog; each answer is for one. A dialog that nobody answers is dismissed.
    void answer(const std::function<void(QDialog&)>& answer) { m_answers.append(answer); }

    DialogDriver()
    {
        m_look.callOnTimeout([this] { look(); });
        m_look.start(std::chrono::milliseconds(5));
    }

private:
    void look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        // One that waits has been answered.
        if (dialog == nullptr || dialog == m_answered) {
            return;
        }
        m_answered = dialog;
        QStringList texts;
        for (const QString& part : {QStringLiteral("message"), QStringLiteral("informativeText")}) {
            texts.append(dialog->findChild<QTextEdit*>(part)->toPlainText());
        }
        shown.append(texts.join(u'|'));
        if (m_answers.isEmpty()) {
            dialog->reject();
        } else {
            m_answers.takeFirst()(*dialog);
        }
    }

    QTimer m_look;
    QPointer<QDialog> m_answered;
    QList<std::function<void(QDialog&)>> m_answers;
};

} // namespace aerolith

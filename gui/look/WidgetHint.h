#pragma once

#include <QWidget>

class QLabel;

namespace VELIX {

/// What a pane shows while it has nothing to show: one centred sentence that says what is so and
/// what to do, and where possible a link that does it.
class WidgetHint : public QWidget
{
    Q_OBJECT

public:
    /// A sentence and the text of a link below it, both plain; an empty link text shows no link.
    struct Message
    {
        QString text; ///< empty: the pane has something to show
        QString link;
        [[nodiscard]] bool isEmpty() const { return text.isEmpty(); }
    };

    /// What several panes say; the second one links to the installation of a profile.
    static Message withoutRecord();
    static Message withoutProfile();

    explicit WidgetHint(QWidget* parent = nullptr);

    /// Both are plain text; an empty link text shows no link.
    void setHint(const QString& text, const QString& linkText = {});
    /// Shows the message in the place of `content`, or the content again if the message is empty.
    /// content: null if the hint only covers what it belongs to
    void showInsteadOf(QWidget* content, const Message& message);
    [[nodiscard]] QString hint() const;

signals:
    /// The link was followed by mouse or keyboard.
    void signalLink();

private:
    QLabel* mText;
    QLabel* mLink;
};

} // namespace VELIX

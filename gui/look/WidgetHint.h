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
    /// What several panes say: sentences, and the text of a link.
    static QString noRecord();
    static QString noProfile();
    static QString installProfile();

    explicit WidgetHint(QWidget* parent = nullptr);
    explicit WidgetHint(const QString& text, QWidget* parent = nullptr);

    /// Both are plain text; an empty link text shows no link.
    void setHint(const QString& text, const QString& linkText = {});
    [[nodiscard]] QString hint() const;

signals:
    /// The link was followed by mouse or keyboard.
    void signalLink();

private:
    QLabel* mText;
    QLabel* mLink;
};

} // namespace VELIX

#pragma once

#include <QToolBar>

#include <vector>

namespace VELIX {

class MainActions;
class QwtComboBox;
struct ProfileVariant;

/// The main window's tool bar: the file actions and the selectors of variant and unit system.
class MainToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit MainToolBar(const MainActions& actions, QWidget* parent = nullptr);

    void fillVariants(const std::vector<ProfileVariant>& variants);
    /// An unknown one leaves the selector on "all".
    void selectVariant(const QString& variant);
    void selectUnit(int unit);

signals:
    /// The user's choices.
    void signalVariant(const QString& variant);
    void signalUnit(int unit);

private:
    QwtComboBox* addSelector(const QString& label, const QString& tip);

    QwtComboBox* mVariant;
    QwtComboBox* mUnit;
};

} // namespace VELIX

#include "tools/velix-demo/DemoDialogs.h"

namespace VELIX {

QString DemoDialogs::openFile(QWidget* /*parent*/, const QString& /*title*/,
                              const QString& /*start*/, const QString& /*filter*/)
{
    return {};
}

QString DemoDialogs::saveFile(QWidget* /*parent*/, const QString& /*title*/,
                              const QString& /*start*/, const QString& /*filter*/,
                              const QString& /*suffix*/)
{
    return {};
}

QString DemoDialogs::folder(QWidget* /*parent*/, const QString& /*title*/, const QString& /*start*/)
{
    return {};
}

DialogService::Answer DemoDialogs::askToSave(QWidget* /*parent*/, const QString& /*title*/,
                                             const QString& /*text*/)
{
    return Answer::Yes;
}

bool DemoDialogs::confirm(QWidget* /*parent*/, const QString& /*title*/, const QString& /*text*/)
{
    return true;
}

bool DemoDialogs::choose(QWidget* /*parent*/, const QString& /*title*/, const QString& /*text*/,
                         const QString& /*accept*/, const QString& /*decline*/)
{
    return false;
}

void DemoDialogs::information(QWidget* /*parent*/, const QString& /*title*/,
                              const QString& /*text*/)
{}

void DemoDialogs::warning(QWidget* /*parent*/, const QString& /*title*/, const QString& text)
{
    mComplaint = text;
}

void DemoDialogs::critical(QWidget* /*parent*/, const QString& /*title*/, const QString& text)
{
    mComplaint = text;
}

} // namespace VELIX

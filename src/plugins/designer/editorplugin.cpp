#include "editorplugin.h"

#include <QtGui/QIcon>

#include <utility>

EditorPlugin::EditorPlugin(EditorDescription description, QObject *parent)
    : QObject(parent), m_description(std::move(description))
{
}

QString EditorPlugin::name() const
{
    return m_description.className;
}

QString EditorPlugin::group() const
{
    return QStringLiteral("Vantor Editors");
}

QString EditorPlugin::toolTip() const
{
    return m_description.toolTip;
}

QString EditorPlugin::whatsThis() const
{
    return m_description.toolTip;
}

QString EditorPlugin::includeFile() const
{
    return m_description.includeFile;
}

// The widget box ignores icons without sizes, such as those of SVG files.
QIcon EditorPlugin::icon() const
{
    const QIcon drawing(QStringLiteral(":/vantorslider/icons/%1.svg").arg(shortName().toLower()));
    QIcon icon;
    for (const int size : {22, 44}) {
        icon.addPixmap(drawing.pixmap(size, size));
    }
    return icon;
}

// The rows belong to the editor: nothing can be dropped into it.
bool EditorPlugin::isContainer() const
{
    return false;
}

QWidget *EditorPlugin::createWidget(QWidget *parent)
{
    return m_description.create(parent);
}

QString EditorPlugin::domXml() const
{
    QString objectName = shortName();
    objectName[0] = objectName[0].toLower();
    return QStringLiteral("<ui language=\"c++\" displayname=\"%1\">"
                          "<widget class=\"%2\" name=\"%3\">%4</widget></ui>")
        .arg(shortName(), name(), objectName, m_description.properties);
}

QString EditorPlugin::shortName() const
{
    return name().section(QStringLiteral("::"), -1);
}

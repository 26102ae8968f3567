#pragma once

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// What Designer is to know of one editor.
struct EditorDescription
{
    // With its namespaces, as the meta-object has it.
    QString className;
    QString includeFile;
    QString toolTip;
    // The properties that a new one has in a form, as elements of the .ui format.
    QString properties;
    QWidget *(*create)(QWidget *parent);
};

class EditorPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit EditorPlugin(EditorDescription description, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;

private:
    QString shortName() const;

    EditorDescription m_description;
};

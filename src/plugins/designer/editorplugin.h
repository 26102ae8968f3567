#pragma once

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// Describes one editor to Designer.
struct EditorDescription
{
    // With its namespaces, as in the meta-object.
    QString className;
    QString includeFile;
    QString toolTip;
    // Properties of a new editor in a form, as elements of the .ui format.
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

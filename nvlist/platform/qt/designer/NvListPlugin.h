#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace norvane {

/// The widgets of the library for Qt Designer, and for QUiLoader where it finds the plugin.
class NvListPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
  NvListPlugin();
  ~NvListPlugin() override;

  QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return widgets_; }

 private:
  QList<QDesignerCustomWidgetInterface*> widgets_;
};

}  // namespace norvane

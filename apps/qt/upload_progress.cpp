#include "upload_progress.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QProgressBar>
#include <QToolButton>

#include "component/upload_page.h"

namespace pellam::qt {

UploadProgress::UploadProgress(component::UploadPage& page)
    : bar_(new QProgressBar), cancel_(new QToolButton) {
  setObjectName("UploadProgress");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  bar_->setFormat(tr("Uploading %p%"));
  bar_->setFixedWidth(fontMetrics().horizontalAdvance(tr("Uploading 100%")) + 16);
  bar_->setMaximumHeight(fontMetrics().height() + 2);
  cancel_->setText(tr("Cancel"));
  cancel_->setAutoRaise(true);
  cancel_->setToolTip(tr("Stop the upload now"));
  row->addWidget(bar_);
  row->addWidget(cancel_);
  connect(cancel_, &QToolButton::clicked, this, [this, &page] {
    page.cancel();
    cancel_->setEnabled(false);
  });
  page.onProgress = [this](const component::UploadPage::Progress& p) {
    setVisible(p.running);
    if (!p.running) cancel_->setEnabled(true);
    // A transport that cannot count the bytes shows a busy bar.
    const int total = static_cast<int>(std::min<long long>(p.total, 1 << 30));
    bar_->setRange(0, total);
    if (total > 0) bar_->setValue(static_cast<int>(std::min<long long>(p.sent, total)));
  };
  setFixedWidth(sizeHint().width());
  hide();
}

}  // namespace pellam::qt

// Where users reach the makers.
#pragma once

namespace zv {

/// Opens a mail to the support, with the system's version and the build code in its subject.
void openSupportMail();

/// Opens the product's microblog page.
void openMicroblog();

} // namespace zv

################################################################################
#
# ostrel-check
#
################################################################################

OSTREL_CHECK_VERSION = 0.1.0
OSTREL_CHECK_SOURCE = ostrel-$(OSTREL_CHECK_VERSION).tar.gz
# The address of the releases. Instead of downloading a release, you can set
# OSTREL_CHECK_OVERRIDE_SRCDIR to a source tree. packaging/release creates
# ostrel-check.hash for this folder.
OSTREL_CHECK_SITE = $(OSTREL_SOURCE_URL)
# OSTREL_CHECK_LICENSE is not set, because the source tree specifies no
# licence. Ask the developers before you distribute it.
# Other packages need the headers and the files for CMake and pkg-config.
OSTREL_CHECK_INSTALL_STAGING = YES

OSTREL_CHECK_CONF_OPTS = \
	-DOSTREL_BUILD_TOOLS=OFF \
	-DOSTREL_MODEL=$(call qstrip,$(BR2_PACKAGE_OSTREL_CHECK_MODEL)) \
	-DOSTREL_ACCOUNT_REALM=$(call qstrip,$(BR2_PACKAGE_OSTREL_CHECK_ACCOUNT_REALM)) \
	-DOSTREL_SETUP_REALM=$(call qstrip,$(BR2_PACKAGE_OSTREL_CHECK_SETUP_REALM))

$(eval $(cmake-package))

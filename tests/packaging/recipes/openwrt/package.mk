# Stands in for OpenWrt's package.mk. BuildPackage checks that a recipe defines every mandatory variable and hook,
# configures the package with the recipe's options, and installs a finished build with the recipe's hooks. For a MIPS
# target, it uses -mips16 unless the recipe excludes that.
PKG_USE_MIPS16 ?= 1
ifeq ($(CONFIG_USE_MIPS16)$(strip $(PKG_USE_MIPS16)),y1)
  TARGET_CFLAGS += -mips16 -minterlink-mips16
endif

define BuildPackage
$(foreach variable,PKG_NAME PKG_VERSION PKG_RELEASE PKG_SOURCE PKG_SOURCE_URL PKG_HASH PKG_MAINTAINER,$(call require,$(variable)))
$(foreach hook,Package/$(1) Package/$(1)/description Package/$(1)/install Build/InstallDev,$(call require,$(hook)))
$(eval $(Package/$(1)))
$(foreach variable,SECTION CATEGORY TITLE,$(call require,$(variable)))
$(if $(filter $(PKG_NAME),$(1)),,$(error $(1) is not the package of this recipe))

all:
	$(CMAKE) -S $(SOURCE_TREE) -B $(PKG_BUILD_DIR) $(CMAKE_OPTIONS)
	$(if $(filter 1,$(CMAKE_INSTALL)),$(CMAKE) --install $(FINISHED_BUILD) --prefix $(PKG_INSTALL_DIR)/usr)
	$(call Build/InstallDev,$(SCRATCH)/staging)
	$(call Package/$(1)/install,$(SCRATCH)/root)
endef

require = $(if $(strip $(value $(1))),,$(error $(1) is not set))

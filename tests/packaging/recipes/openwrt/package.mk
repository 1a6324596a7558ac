# Stands in for OpenWrt's package.mk: BuildPackage checks what a recipe must define, configures with its options, and
# installs a finished build by its hook.
define BuildPackage
$(foreach variable,PKG_NAME PKG_VERSION PKG_RELEASE PKG_SOURCE PKG_SOURCE_URL PKG_HASH PKG_MAINTAINER,$(call require,$(variable)))
$(foreach hook,Package/$(1) Package/$(1)/description Package/$(1)/install,$(call require,$(hook)))
$(eval $(Package/$(1)))
$(foreach variable,SECTION CATEGORY TITLE,$(call require,$(variable)))
$(if $(filter $(PKG_NAME),$(1)),,$(error $(1) is not the package of this recipe))

all:
	$(CMAKE) -S $(SOURCE_TREE) -B $(PKG_BUILD_DIR) -DCMAKE_INSTALL_PREFIX=/usr $(CMAKE_OPTIONS)
	$(CMAKE) --install $(FINISHED_BUILD) --prefix $(PKG_INSTALL_DIR)/usr
	$(call Package/$(1)/install,$(SCRATCH)/root)
endef

require = $(if $(strip $(value $(1))),,$(error $(1) is not set))

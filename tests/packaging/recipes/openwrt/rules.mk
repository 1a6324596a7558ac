# Stands in for OpenWrt's rules.mk, which defines the variables and tools that recipes use.
INCLUDE_DIR := $(TOPDIR)
BUILD_DIR := $(SCRATCH)/build_dir
PKG_INSTALL_DIR := $(SCRATCH)/ipkg-install
INSTALL_DIR := install -d -m0755
INSTALL_BIN := install -m0755
CP := cp -fpR
TARGET_CFLAGS := -Os
TARGET_CXXFLAGS = $(TARGET_CFLAGS)

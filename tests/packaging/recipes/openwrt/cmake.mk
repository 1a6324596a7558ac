# Stands in for OpenWrt's cmake.mk, whose part package.mk plays here as well.

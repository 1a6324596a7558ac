# Stands in for OpenWrt's cmake.mk, which defines the options with which every package is configured.
CMAKE_OPTIONS = -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS=$(TARGET_CXXFLAGS)" \
	-DCMAKE_CXX_FLAGS_RELEASE=-DNDEBUG $(COMPILERS)

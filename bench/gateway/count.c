/* A plugin for QEMU that counts the instructions of an emulated program. It declares the functions of the
   plugin interface (version 1) itself, because not every distribution provides the header. */
#include <inttypes.h>
#include <stdint.h>
#include <stdio.h>

typedef uint64_t qemu_plugin_id_t;
struct qemu_plugin_tb;
enum qemu_plugin_op { QEMU_PLUGIN_INLINE_ADD_U64 };

void qemu_plugin_register_vcpu_tb_trans_cb(qemu_plugin_id_t id,
                                           void (*callback)(qemu_plugin_id_t, struct qemu_plugin_tb*));
void qemu_plugin_register_vcpu_tb_exec_inline(struct qemu_plugin_tb* block, enum qemu_plugin_op op,
                                              void* counter, uint64_t addend);
void qemu_plugin_register_atexit_cb(qemu_plugin_id_t id, void (*callback)(qemu_plugin_id_t, void*),
                                    void* data);
size_t qemu_plugin_tb_n_insns(const struct qemu_plugin_tb* block);

__attribute__((visibility("default"))) int qemu_plugin_version = 1;

static uint64_t executed;

static void count_block(qemu_plugin_id_t id, struct qemu_plugin_tb* block)
{
    (void)id;
    qemu_plugin_register_vcpu_tb_exec_inline(block, QEMU_PLUGIN_INLINE_ADD_U64, &executed,
                                             qemu_plugin_tb_n_insns(block));
}

static void print_count(qemu_plugin_id_t id, void* data)
{
    (void)data;
    (void)id;
    fprintf(stderr, "%" PRIu64 "\n", executed);
}

__attribute__((visibility("default"))) int qemu_plugin_install(qemu_plugin_id_t id, const void* info,
                                                               int argc, char** argv)
{
    (void)info;
    (void)argc;
    (void)argv;
    qemu_plugin_register_vcpu_tb_trans_cb(id, count_block);
    qemu_plugin_register_atexit_cb(id, print_count, NULL);
    return 0;
}

// Compiles a WebAssembly module, which is either passed by the caller or fetched from the package's folder.

export async function compiled(given, url) {
  if (given instanceof WebAssembly.Module) return given;
  if (given === undefined && url.protocol === 'file:') {
    given = await (await import('node:fs/promises')).readFile(url);
  } else if (given === undefined) {
    const response = await fetch(url);
    if (!response.ok) throw new Error(`${url}: ${response.status}`);
    given = await response.arrayBuffer();
  }
  try {
    return await WebAssembly.compile(given);
  } catch (cause) {
    throw new Error("the content security policy must allow 'wasm-unsafe-eval'", {cause});
  }
}

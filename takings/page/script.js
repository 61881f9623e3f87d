const ink = '#1f2933', own = '#1f6f8b', back = '#c0504d';
Chart.defaults.font.size = 13;
Chart.defaults.color = ink;
Chart.defaults.animation = false;
Chart.defaults.maintainAspectRatio = false;
Chart.defaults.plugins.legend.display = false;
for (const chart of charts) {
  const canvas = document.getElementById('c' + chart.at);
  const lies = chart.form === 'bars', isLine = chart.form === 'line';
  const short = name => name.length > 10 ? name.slice(0, 9) + '…' : name;
  const names = { ticks: { callback(at) { return short(this.getLabelForValue(at)); } } };
  const values = { beginAtZero: true, ticks: { maxTicksLimit: lies ? 5 : 8 } };
  if (lies) canvas.parentNode.style.height = 60 + 28 * chart.names.length + 'px';
  new Chart(canvas, {
    type: isLine ? 'line' : 'bar',
    data: {
      labels: chart.names,
      datasets: [{
        label: chart.label, data: chart.values, maxBarThickness: 36,
        backgroundColor: chart.values.map(value => value < 0 ? back : own),
        borderColor: own, borderWidth: isLine ? 2 : 0, pointRadius: chart.names.length > 60 ? 0 : 3
      }]
    },
    options: { indexAxis: lies ? 'y' : 'x', scales: lies ? { x: values, y: names } : { x: names, y: values } }
  });
}
addEventListener('beforeprint', () => { for (const id in Chart.instances) Chart.instances[id].resize(); });
